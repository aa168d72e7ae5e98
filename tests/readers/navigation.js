'use strict';

// node navigation.js READER FILE...
//
// Prints the outline and the links of PDF files as a reader has them: READER is pdfjs, qpdf or
// mupdf. Each file is a line "file", its bookmarks from top to bottom with their depth, its links
// page by page:
//
//   bookmark 1 count -2 dest 3 FitH 700.25 title One
//   link 1 rect 10 10 110 30 highlight I border 2 3 2 color 255 0 0 dest none
//
// Pages are counted from 1. What a file does not say is "none". The library pdf.js does not tell
// highlights, which are "untold" then, and takes no border at all for one of no width.

const {execFileSync} = require('child_process');
const fs = require('fs');
const path = require('path');

function destOf(dest) {
  return dest ? dest.join(' ') : 'none';
}

function bytesOf(color) {
  return Array.from(color || [0, 0, 0], (share) => Math.round(share * 255)).join(' ');
}

// Names and references as qpdf has them: "/Name" and "7 0 R".
class Objects {
  constructor(text, trailer) {
    this.objects = text;
    const catalog = this.follow(trailer['/Root']);
    this.outline = this.follow(catalog['/Outlines']);
    this.pages = this.follow(catalog['/Pages'])['/Kids'];
  }

  follow(value) {
    return typeof value === 'string' && / 0 R$/.test(value) ? this.objects[value] : value;
  }

  dest(array) {
    if (!array) return null;
    return [this.pages.indexOf(array[0]) + 1, array[1].slice(1), ...array.slice(2)];
  }

  bookmarks(parent, depth, lines) {
    let previous;
    for (let at = parent['/First']; at; at = this.follow(at)['/Next']) {
      const mark = this.follow(at);
      if (mark['/Prev'] !== previous) throw new Error(`${at} is not behind ${previous}`);
      if (this.follow(mark['/Parent']) !== parent) throw new Error(`${at} has another parent`);
      const count = mark['/Count'] === undefined ? 'none' : mark['/Count'];
      lines.push(`bookmark ${depth} count ${count} dest ${destOf(this.dest(mark['/Dest']))}` +
                 ` title ${mark['/Title']}`);
      this.bookmarks(mark, depth + 1, lines);
      previous = at;
    }
    if (parent['/Last'] !== previous) throw new Error(`${parent['/Last']} is not the last`);
  }

  links(lines) {
    this.pages.forEach((page, i) => {
      for (const annotation of this.follow(page)['/Annots'] || []) {
        const link = this.follow(annotation);
        if (link['/Subtype'] !== '/Link') throw new Error(`${annotation} is no link`);
        const border = link['/Border'];
        lines.push(`link ${i + 1} rect ${link['/Rect'].join(' ')}` +
                   ` highlight ${(link['/H'] || '/none').slice(1)}` +
                   ` border ${border ? [border[2], ...border[3]].join(' ') : 'none'}` +
                   ` color ${bytesOf(link['/C'])} dest ${destOf(this.dest(link['/Dest']))}`);
      }
    });
  }

  lines() {
    const visible = this.outline['/Count'];
    const lines = [`outline count ${visible === undefined ? 'none' : visible}`];
    this.bookmarks(this.outline, 1, lines);
    this.links(lines);
    return lines;
  }
}

function run(...command) {
  return execFileSync(command[0], command.slice(1), {encoding: 'utf8', maxBuffer: 1 << 28});
}

async function readWithQpdf(file) {
  const json = JSON.parse(run('qpdf', '--json=1', '--json-key=objects', file));
  return new Objects(json.objects, json.objects.trailer).lines();
}

async function readWithMupdf(file) {
  const told = JSON.parse(run('mutool', 'run', path.join(__dirname, 'mupdf.js'), file));
  const objects = new Objects(told.objects, told.trailer);
  const lines = objects.lines();

  // What MuPDF makes of it: the outline as it shows it, and the links that it can follow.
  const titles = [];
  (function walk(marks, depth) {
    for (const mark of marks || []) {
      titles.push(`${depth} ${mark.title}`);
      walk(mark.down, depth + 1);
    }
  })(told.outline, 1);
  const written = lines.filter((line) => line.startsWith('bookmark'))
      .map((line) => line.replace(/^bookmark (\d+) .*? title /, '$1 '));
  if (titles.join('\n') !== written.join('\n')) throw new Error('MuPDF shows another outline');
  const links = lines.filter((line) => /^link.* dest \d/.test(line))
      .map((line) => line.replace(/^link (\d+) rect ((?:\S+ ){4}).* dest (\d+) .*$/, '$1 $2$3'));
  if (told.links.join('\n') !== links.join('\n')) throw new Error('MuPDF follows other links');
  return lines;
}

function loadPdfjs() {
  if (!fs.existsSync(path.join(__dirname, 'installed'))) {
    const said = fs.readFileSync(path.join(__dirname, 'npm.log'), 'utf8');
    throw new Error(`npm could not install pdf.js:\n${said}`);
  }
  return require('pdfjs-dist/legacy/build/pdf.js');
}

async function readWithPdfjs(file) {
  const pdfjs = loadPdfjs();
  const document = await pdfjs.getDocument({url: file, verbosity: 0}).promise;
  const dest = async (array) => {
    if (!array) return 'none';
    const page = await document.getPageIndex(array[0]) + 1;
    return destOf([page, array[1].name, ...array.slice(2)]);
  };
  const lines = [];
  const walk = async (marks, depth) => {
    for (const mark of marks || []) {
      const count = mark.count === undefined ? 'none' : mark.count;
      lines.push(`bookmark ${depth} count ${count} dest ${await dest(mark.dest)}` +
                 ` title ${mark.title}`);
      await walk(mark.items, depth + 1);
    }
  };
  await walk(await document.getOutline(), 1);
  for (let number = 1; number <= document.numPages; ++number) {
    const page = await document.getPage(number);
    for (const link of await page.getAnnotations()) {
      if (link.subtype !== 'Link') throw new Error(`${link.id} is no link`);
      const {width, dashArray} = link.borderStyle;
      const border = width === 0 ? 'none' : [width, ...dashArray].join(' ');
      lines.push(`link ${number} rect ${link.rect.join(' ')} highlight untold` +
                 ` border ${border} color ${Array.from(link.color).join(' ')}` +
                 ` dest ${await dest(link.dest)}`);
    }
  }
  await document.destroy();
  return lines;
}

async function main(reader, files) {
  const read = {pdfjs: readWithPdfjs, qpdf: readWithQpdf, mupdf: readWithMupdf}[reader];
  for (const file of files) console.log(['file', ...await read(file)].join('\n'));
}

main(process.argv[2], process.argv.slice(3)).catch((error) => {
  console.error(error);
  process.exitCode = 1;
});
