'use strict';

// Ten thousand documents leave no memory behind, and large ones do not pile up.

const assert = require('node:assert/strict');
const { test } = require('node:test');
const { collect, folivar } = require('./support');

const allocator = process.env.FOLIVAR_ALLOCATOR && require(process.env.FOLIVAR_ALLOCATOR);

// Under the sanitizer it counts what is allocated, else all memory of the process, which is less
// exact: JavaScript's own comes and goes.
const usedMemory = () => allocator ? allocator.allocatedBytes() : process.memoryUsage().rss;
const mostForADocument = allocator ? 10 : 1000;

const kinds = {
  pages(document) {
    for (const key of ['a', 'b', 'c']) document.Pages.Add(key).DrawText(`Page ${key}`, 72, 720);
    document.Pages.Remove('b');
    return [...document.Pages];
  },
  fonts(document) {
    const page = document.Pages.Add();
    page.Font = document.Fonts.Add('Times-Roman');
    return [page.Font.Clone(), page.Font.GetTextExtents('text'), document.Fonts(1, 0)];
  },
  textBoxes(document) {
    const box = document.Pages.Add('a').TextBoxes.Add('box');
    box.Text = 'A text that is longer than what a string has room for in itself. '.repeat(9);
    document.Pages.Remove('a');
    return [box, box.Parent, box.SelFont, box.Text];
  },
  tagsInCycles(document) {
    const page = document.Pages.Add();
    document.Tag = { page };
    page.Tag = document;
    page.Tag = () => [document, page];
    page.TextBoxes.Add().Tag = page.TextBoxes;
  },
  handlers(document) {
    const page = document.Pages.Add('a');
    page.PageRemoved(() => page);
    page.PageRemoved(() => document)();
    document.Pages.Add('b').PageRemoved((removed) => removed.Tag);
    document.Pages.Remove('b');
  },
  exceptions(document) {
    document.Pages.Add('a').PageRemoved(() => { throw new Error('in a handler'); });
    assert.throws(() => document.Pages.Remove('a'), /in a handler/);
    assert.throws(() => document.Pages(5), { number: 9 });
    assert.throws(() => { document.ViewerPreferences.PageMode = {}; }, { number: 13 });
    assert.throws(() => document.Pages.Add('b', { Wrong: 1 }), TypeError);
    assert.throws(() => document.Pags, TypeError);
  },
  warnings(document) {
    assert.throws(() => document.Fonts.Add('Nonesuch'), /a warning/);
  },
};

async function make(count) {
  const makers = Object.values(kinds);
  for (let i = 0; i < count; ++i) {
    makers[i % makers.length](folivar.PDFDocument());
    // The objects of the library end between turns of the event loop.
    if (i % 100 === 99) await collect(1);
  }
  await collect();
}

test('a garbage collection comes by itself in time', async () => {
  const text = 'x'.repeat(8000);
  const before = usedMemory();
  let most = 0;
  for (let i = 0; i < 500; ++i) {
    const page = folivar.PDFDocument().Pages.Add();
    for (let y = 0; y < 100; ++y) page.DrawText(text, 72, y);
    await new Promise((resolve) => setImmediate(resolve));
    most = Math.max(most, usedMemory() - before);
  }
  // Together they are 400 million bytes.
  assert.ok(most < 2e8, `${most} bytes were in use`);
});

test('documents', async () => {
  folivar.warnings(() => { throw new Error('a warning'); });
  await make(2000);
  const before = usedMemory();
  await make(10000);
  const left = usedMemory() - before;
  assert.ok(left < 10000 * mostForADocument, `${left} bytes are left behind`);
});
