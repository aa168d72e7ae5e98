from reportlab.lib.pagesizes import letter
from reportlab.pdfgen.canvas import Canvas
from workload import LEADING, LEFT, TOP, file, lines_of, page_count

# All lines of a page in one text object, which is faster than a call of drawString for each.
canvas = Canvas(file, pagesize=letter, pageCompression=0)
for number in range(page_count):
    text = canvas.beginText(LEFT, TOP)
    text.setFont("Helvetica", 10, LEADING)
    text.textLines(lines_of(number))
    canvas.drawText(text)
    canvas.showPage()
canvas.save()
