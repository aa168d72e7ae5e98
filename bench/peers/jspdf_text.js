'use strict';

const { jsPDF } = require('jspdf');
const { left, top, leading, height, pageCount, file, linesOf } = require('./workload.js');

// All lines of a page at once, which is faster than a call for each line.
const document = new jsPDF({ unit: 'pt', format: 'letter', compress: false });
document.setFont('helvetica').setFontSize(10);
for (let number = 0; number < pageCount; ++number) {
  if (number > 0) document.addPage();
  document.text(linesOf(number), left, height - top, { lineHeightFactor: leading / 10 });
}
document.save(file);
