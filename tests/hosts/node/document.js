'use strict';

// A document of many parts. As a worker thread it writes one into the file that is its data; with
// 'forever' it writes nothing and goes on making them, and tells when it has begun.

const { isMainThread, parentPort, workerData } = require('node:worker_threads');

function makeDocument(folivar) {
  const document = new folivar.PDFDocument();
  const heading = document.Fonts.Add('Times-Bold');
  heading.Size = 18;
  for (let number = 1; number <= 20; ++number) {
    const page = document.Pages.Add(`page ${number}`);
    page.Font = heading;
    page.DrawText(`Page ${number}`, 72, 720);
    page.GraphicsState.FillColor = number * 1000;
    page.DrawRect(72, 600, 100, 50, false, true);
    const box = page.TextBoxes.Add('box');
    box.Move(72, 500, 200, 100);
    box.Text = 'What is in a box is broken into lines. '.repeat(5);
    page.Tag = { document, box };
    page.PageRemoved(() => document.Pages.count + box.Left);
    const bookmark = document.Bookmarks.Add();
    bookmark.Title = page.Key;
    bookmark.Destination.page = page;
  }
  document.Tag = { last: document.Pages(20) };
  document.Pages.Remove(20);
  return document;
}

function writeDocument(folivar, file) {
  makeDocument(folivar).SavePDFFile(file);
}

function makeForever(folivar) {
  makeDocument(folivar);
  parentPort.postMessage('begun');
  for (;;) {
    const document = makeDocument(folivar);
    document.Pages(1).PageRemoved(() => makeDocument(folivar));
    document.Pages.Remove(1);
  }
}

module.exports = { makeDocument, writeDocument };
if (!isMainThread && workerData) {
  const folivar = require(process.env.FOLIVAR_NODE);
  if (workerData === 'forever') makeForever(folivar);
  else writeDocument(folivar, workerData);
}
