'use strict';

const fs = require('node:fs');

const { PDFDocument, PageSizes, StandardFonts } = require('pdf-lib');
const { left, top, leading, pageCount, file, linesOf } = require('./workload.js');

// All lines of a page at once, and the whole file without waiting for others: both are faster. The
// pages' contents are compressed, which no option prevents.
async function write() {
  const document = await PDFDocument.create();
  const font = await document.embedFont(StandardFonts.Helvetica);
  for (let number = 0; number < pageCount; ++number) {
    const page = document.addPage(PageSizes.Letter);
    page.drawText(linesOf(number).join('\n'),
      { x: left, y: top, lineHeight: leading, font, size: 10 });
  }
  fs.writeFileSync(file,
    await document.save({ useObjectStreams: false, objectsPerTick: Infinity }));
}

write();
