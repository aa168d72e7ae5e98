'use strict';

// What the tests of the module for Node share.

const fs = require('node:fs');
const os = require('node:os');
const path = require('node:path');

const moduleFolder = process.env.FOLIVAR_NODE;
const folivar = require(moduleFolder);

const output = fs.mkdtempSync(path.join(os.tmpdir(), 'folivar-node-'));
process.on('exit', () => fs.rmSync(output, { recursive: true, force: true }));

let files = 0;
// A path where nothing is yet.
const newFile = (extension = 'pdf') => path.join(output, `${++files}.${extension}`);

// What the document is as a file.
function bytesOf(document) {
  const file = newFile();
  document.SavePDFFile(file);
  return fs.readFileSync(file);
}

// Lets go of all that cannot be reached, as often as one thing keeps the next.
async function collect(rounds = 6) {
  for (let i = 0; i < rounds; ++i) {
    globalThis.gc();
    await new Promise((resolve) => setImmediate(resolve));
  }
}

// Whether what `make` returns goes away once nobody refers to it. `make` may return several.
async function areCollected(make) {
  const references = (() => [make()].flat().map((object) => new WeakRef(object)))();
  await new Promise((resolve) => setImmediate(resolve));
  await collect();
  return references.every((reference) => reference.deref() === undefined);
}

module.exports = { areCollected, bytesOf, collect, folivar, moduleFolder, newFile };
