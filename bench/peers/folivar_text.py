import folivar
from workload import LEFT, ROWS, file, lines_of, page_count

document = folivar.PDFDocument()
for number in range(page_count):
    page = document.Pages.Add()
    for line, y in zip(lines_of(number), ROWS):
        page.DrawText(line, LEFT, y)
document.SavePDFFile(file)
