'use strict';

// An invoice as a PDF document; server.js sends it.

const folivar = require('folivar');

const rgb = (red, green, blue) => red + 256 * green + 65536 * blue;
const INK = rgb(33, 37, 41);
const QUIET = rgb(108, 117, 125);
const ACCENT = rgb(15, 76, 92);
const STRIPE = rgb(238, 243, 245);
const WHITE = rgb(255, 255, 255);

const WIDTH = 595;
const HEIGHT = 842;
const LEFT = 56;
const RIGHT = WIDTH - 56;
const ROW = 24;
const FIRST_ROW = 560;
const LAST_ROW = 150;

const COLUMNS = [
  { title: 'Description', left: LEFT, width: 243, align: folivar.htaLeft },
  { title: 'Quantity', left: 299, width: 60, align: folivar.htaRight },
  { title: 'Price', left: 369, width: 75, align: folivar.htaRight },
  { title: 'Amount', left: 454, width: 85, align: folivar.htaRight },
];

const money = new Intl.NumberFormat('en-GB',
  { minimumFractionDigits: 2, maximumFractionDigits: 2 });
const plain = new Intl.NumberFormat('en-GB', { maximumFractionDigits: 3 });

class Invoice {
  // { number, date, to, address, items: [{ description, quantity, price }] }
  constructor(order) {
    this.order = order;
    this.document = new folivar.PDFDocument();
    this.regular = this.font('Helvetica', 10);
    this.bold = this.font('Helvetica-Bold', 10);
    this.title = this.font('Helvetica-Bold', 26);
    this.footer = this.makeFooter();
    this.writeItems();
  }

  save(file) {
    this.document.SavePDFFile(file);
  }

  font(face, size) {
    const font = this.document.Fonts.Add(face);
    font.Size = size;
    return font;
  }

  // What all pages share is in the file once.
  makeFooter() {
    const footer = this.document.Templates.Add('footer');
    footer.GraphicsState.StrokeColor = ACCENT;
    footer.GraphicsState.LineWidth = 1;
    footer.DrawLine(LEFT, 70, RIGHT, 70);
    footer.Font = this.font('Helvetica', 8);
    footer.GraphicsState.FillColor = QUIET;
    footer.DrawText('Harbour Lights Ltd, 4 Quay Street, Lower Marsh', LEFT, 56);
    return footer;
  }

  write(text, font, color, x, y) {
    this.page.GraphicsState.FillColor = color;
    this.page.Font = font;
    this.page.DrawText(text, x, y);
  }

  fill(color, left, bottom, width, height) {
    this.page.GraphicsState.FillColor = color;
    this.page.DrawRect(left, bottom, width, height, { Stroke: false, Fill: true });
  }

  addPage() {
    this.page = this.document.Pages.Add();
    this.page.SetPageExtents(WIDTH, HEIGHT);
    this.page.DrawTemplate(this.footer);
    this.fill(ACCENT, 0, HEIGHT - 96, WIDTH, 96);
    this.write('Invoice', this.title, WHITE, LEFT, HEIGHT - 60);
    const { number, date } = this.order;
    for (const [i, text] of [`No. ${number}`, date].entries()) {
      this.page.Font = this.regular;
      this.page.DrawTextAligned(text, LEFT, HEIGHT - 52 - 14 * i, RIGHT - LEFT, 12,
        { HorzAlignment: folivar.htaRight });
    }
  }

  writeRecipient() {
    this.write('Billed to', this.regular, QUIET, LEFT, HEIGHT - 136);
    this.write(this.order.to, this.bold, INK, LEFT, HEIGHT - 154);
    const box = this.page.TextBoxes.Add();
    box.Move(LEFT, HEIGHT - 160, 240, 60);
    box.SetMargins(0, 0, 0, 0);
    box.BorderWidth = 0;
    box.Text = this.order.address;
    box.SelStart = 0;
    box.SelLength = box.Text.length;
    box.SelFont = this.regular;
    box.SelColor = INK;
  }

  writeRow(y, font, color, cells) {
    this.page.GraphicsState.FillColor = color;
    this.page.Font = font;
    for (const [i, { left, width, align }] of COLUMNS.entries()) {
      const text = this.fitting(cells[i], font, width);
      this.page.DrawTextAligned(text, left, y + 8, width, ROW, align);
    }
  }

  // As much of the text as there is room for.
  fitting(text, font, width) {
    if (font.TextWidth(text) <= width) return text;
    let length = text.length;
    while (font.TextWidth(`${text.slice(0, length)}...`) > width) --length;
    return `${text.slice(0, length)}...`;
  }

  beginTable(y) {
    this.fill(ACCENT, LEFT - 8, y, RIGHT - LEFT + 16, ROW);
    this.writeRow(y, this.bold, WHITE, COLUMNS.map(({ title }) => title));
  }

  writeItems() {
    this.addPage();
    this.writeRecipient();
    let y = FIRST_ROW;
    this.beginTable(y);
    let total = 0;
    for (const [i, { description, quantity, price }] of this.order.items.entries()) {
      if (y - ROW < LAST_ROW) {
        this.addPage();
        y = HEIGHT - 96 - 2 * ROW;
        this.beginTable(y);
      }
      y -= ROW;
      if (i % 2 === 1) this.fill(STRIPE, LEFT - 8, y, RIGHT - LEFT + 16, ROW);
      this.writeRow(y, this.regular, INK, [description, plain.format(quantity),
        money.format(price), money.format(quantity * price)]);
      total += quantity * price;
    }
    this.writeTotal(y - ROW - 8, total);
  }

  writeTotal(y, total) {
    this.page.GraphicsState.StrokeColor = ACCENT;
    this.page.DrawLine(COLUMNS[2].left, y + ROW, RIGHT, y + ROW);
    this.writeRow(y, this.bold, ACCENT, ['', '', 'Total EUR', money.format(total)]);
  }
}

module.exports = { Invoice };
