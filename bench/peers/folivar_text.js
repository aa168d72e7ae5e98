'use strict';

const folivar = require('folivar');
const { left, rows, pageCount, file, linesOf } = require('./workload.js');

const document = new folivar.PDFDocument();
for (let number = 0; number < pageCount; ++number) {
  const page = document.Pages.Add();
  const lines = linesOf(number);
  for (let i = 0; i < rows.length; ++i) page.DrawText(lines[i], left, rows[i]);
}
document.SavePDFFile(file);
