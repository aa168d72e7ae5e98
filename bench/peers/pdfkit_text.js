'use strict';

const fs = require('node:fs');

const PDFDocument = require('pdfkit');
const { left, rows, height, pageCount, file, linesOf } = require('./workload.js');

const document = new PDFDocument({ size: 'letter', compress: false, autoFirstPage: false });
document.pipe(fs.createWriteStream(file));
document.font('Helvetica', 10);
for (let number = 0; number < pageCount; ++number) {
  document.addPage();
  const lines = linesOf(number);
  for (let i = 0; i < rows.length; ++i) {
    document.text(lines[i], left, height - rows[i], { lineBreak: false, baseline: 'alphabetic' });
  }
}
document.end();
