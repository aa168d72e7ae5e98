'use strict';

// Worker threads, each with documents of its own.

const assert = require('node:assert/strict');
const { spawnSync } = require('node:child_process');
const fs = require('node:fs');
const path = require('node:path');
const { test } = require('node:test');
const { Worker } = require('node:worker_threads');
const { writeDocument } = require('./document');
const { folivar, moduleFolder, newFile } = require('./support');

const start = (workerData) => new Worker(path.join(__dirname, 'document.js'), { workerData });

// A worker that runs this code, with `folivar` in it.
const run = (code) => new Worker(
  `const folivar = require(${JSON.stringify(moduleFolder)}); ${code}`, { eval: true });

const ended = (worker) => new Promise((resolve, reject) => {
  worker.on('error', reject).on('exit', resolve);
});

test('the same bytes from all threads at once', async () => {
  const files = Array.from({ length: 8 }, () => newFile());
  const workers = files.map((file) => ended(start(file)));
  const file = newFile();
  writeDocument(folivar, file);
  assert.deepEqual(new Set(await Promise.all(workers)), new Set([0]));
  for (const other of files) assert.deepEqual(fs.readFileSync(other), fs.readFileSync(file));
});

test('ended in the midst of their work', async () => {
  const workers = Array.from({ length: 6 }, () => start('forever'));
  await Promise.all(workers.map((worker, i) => new Promise((resolve) => {
    worker.once('message', () => setTimeout(async () => {
      assert.equal(await worker.terminate(), 1);
      resolve();
    }, 7 * i));
  })));
  writeDocument(folivar, newFile());
});

test('ended by themselves, in a handler', async () => {
  const worker = run(`
    const document = folivar.PDFDocument();
    document.Tag = document.Pages.Add('a');
    document.Pages('a').PageRemoved(() => process.exit(3));
    document.Pages.Remove('a');
    process.exit(4);`);
  assert.equal(await ended(worker), 3);
});

test('ended while they hold documents', async () => {
  const worker = run(`
    globalThis.kept = Array.from({ length: 50 }, () => folivar.PDFDocument());
    for (const document of kept) {
      document.Tag = { kept };
      document.Pages.Add().PageRemoved(() => kept);
    }`);
  assert.equal(await ended(worker), 0);
});

test('a process that ends in a handler', () => {
  const { status, stderr } = spawnSync(process.execPath, ['-e', `
    const document = require(${JSON.stringify(moduleFolder)}).PDFDocument();
    document.Tag = { page: document.Pages.Add('a') };
    document.Pages('a').PageRemoved(() => process.exit(3));
    document.Pages.Remove('a');`], { encoding: 'utf8' });
  assert.deepEqual([status, stderr], [3, '']);
});
