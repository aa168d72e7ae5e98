'use strict';

// The work that every program for Node is given: pages of text as in Workload.h.
//
//   SCRIPT LINES_FILE PAGES FILE

const fs = require('node:fs');

const left = 72, top = 750.5, leading = 11.75;
const rows = Array.from({ length: 60 }, (_, number) => top - leading * number);

const [linesFile, pageCount, file] = process.argv.slice(2);
const lines = fs.readFileSync(linesFile, 'utf8').trimEnd().split('\n');
// So that no page's lines go over the end.
const repeated = [...lines, ...lines.slice(0, rows.length)];

function linesOf(page) {
  const first = page % lines.length;
  return repeated.slice(first, first + rows.length);
}

module.exports = {
  left, top, leading, rows, height: 792, pageCount: Number(pageCount), file, linesOf,
};
