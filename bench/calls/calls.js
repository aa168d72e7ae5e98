'use strict';

// As calls.cpp, in JavaScript.

const fs = require('node:fs');

const folivar = require('folivar');

function readRows(path) {
  const lines = fs.readFileSync(path, 'utf8').split('\n').slice(0, 60);
  return lines.map((line, number) => ({ line, y: 750.5 - 11.75 * number }));
}

function draw(rows, pageCount) {
  const document = new folivar.PDFDocument();
  const pages = Array.from({ length: pageCount }, () => document.Pages.Add());

  const start = process.hrtime.bigint();
  for (const page of pages) {
    for (const { line, y } of rows) page.DrawText(line, 72, y);
  }
  return process.hrtime.bigint() - start;
}

const [linesFile, pageCount] = process.argv.slice(2);
console.log(String(draw(readRows(linesFile), Number(pageCount))));
