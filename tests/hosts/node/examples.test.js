'use strict';

// The examples for Node.

const assert = require('node:assert/strict');
const { execFileSync, spawn, spawnSync } = require('node:child_process');
const { once } = require('node:events');
const fs = require('node:fs');
const http = require('node:http');
const path = require('node:path');
const { test } = require('node:test');
const { newFile } = require('./support');

const examples = process.env.FOLIVAR_EXAMPLES;
const output = process.env.FOLIVAR_OUTPUT;
fs.mkdirSync(output, { recursive: true });

const report = (...words) =>
  spawnSync(process.execPath, [path.join(examples, 'report.js'), ...words], { encoding: 'utf8' });

test('the report is that of the library itself', () => {
  const [native, file] = [path.join(output, 'native.pdf'), path.join(output, 'report.pdf')];
  execFileSync(process.env.FOLIVAR_REPORT, [process.env.FOLIVAR_PICTURE, native]);
  assert.equal(report(process.env.FOLIVAR_PICTURE, file).status, 0);
  assert.ok(fs.readFileSync(file).equals(fs.readFileSync(native)));
});

test('the report without its picture says so', () => {
  const { status, stderr } = report('no-picture.jpg', newFile());
  assert.equal(status, 1);
  assert.match(stderr, /^report: .*no-picture\.jpg.*\n$/);
});

// Runs a server with a folder for its files, which it must leave empty.
async function withServer(use) {
  const folder = newFile('files');
  fs.mkdirSync(folder);
  process.env.TMPDIR = folder;
  const server = require(path.join(examples, 'server.js')).createServer();
  server.listen(0, '127.0.0.1');
  await once(server, 'listening');
  try {
    await use(`http://127.0.0.1:${server.address().port}`, folder);
  } finally {
    server.closeAllConnections?.();
    server.close();
    await once(server, 'close');
    delete process.env.TMPDIR;
  }
  assert.deepEqual(fs.readdirSync(folder), []);
}

const filesIn = (folder) => fs.readdirSync(folder, { withFileTypes: true })
  .flatMap((entry) => entry.isDirectory() ? filesIn(path.join(folder, entry.name)) : [entry.name]);

async function checkInvoice(base, i) {
  const items = Array.from({ length: 10 * i + 1 }, (_, j) => `&item=Thing+${j};${j};1.25`).join('');
  const answer = await fetch(`${base}/invoice?to=Customer+${i}&number=N-${i}&address=Here${items}`);
  assert.equal(answer.status, 200);
  assert.equal(answer.headers.get('content-type'), 'application/pdf');
  const bytes = Buffer.from(await answer.arrayBuffer());
  assert.equal(Number(answer.headers.get('content-length')), bytes.length);

  const file = path.join(output, `invoice-${i}.pdf`);
  fs.writeFileSync(file, bytes);
  execFileSync('qpdf', ['--check', file]);
  const text = execFileSync('pdftotext', ['-layout', file, '-'], { encoding: 'utf8' });
  assert.match(text, new RegExp(`No\\. N-${i}\\n`));
  assert.match(text, new RegExp(`^ *Customer ${i}$`, 'm'));
  for (let j = 0; j <= 10 * i; ++j) assert.match(text, new RegExp(`Thing ${j} +${j} +1\\.25 `));
  // 1.25 times the sum of the quantities.
  const total = (1.25 * 10 * i * (10 * i + 1) / 2).toFixed(2).replace(/\B(?=(\d{3})+\.)/g, ',');
  assert.match(text, new RegExp(`Total EUR +${total}\\n`));
}

test('the server answers several requests at once', () => withServer(async (base, folder) => {
  await Promise.all(Array.from({ length: 8 }, (_, i) => checkInvoice(base, i)));
  assert.deepEqual(filesIn(folder), []);
}));

test('the server says what is wrong', () => withServer(async (base) => {
  const refused = async (status, pattern, pathname, options) => {
    const answer = await fetch(base + pathname, options);
    assert.equal(answer.status, status, pathname);
    assert.match(answer.headers.get('content-type'), /^text\/plain/);
    assert.match(await answer.text(), pattern);
    return answer;
  };
  await refused(404, /\/elsewhere/, '/elsewhere');
  await refused(400, /'to' is missing/, '/invoice?item=a;1;1');
  await refused(400, /'item' is missing/, '/invoice?to=a');
  for (const item of ['a', 'a;1', 'a;1;b', 'a;;1', 'a;-1;1', 'a;1;1;1', 'a;1e99;1']) {
    await refused(400, /is not an item/, `/invoice?to=a&item=${item}`);
  }
  await refused(400, /more than 500/, `/invoice?to=a${'&item=a;1;1'.repeat(501)}`);
  const answer = await refused(405, /POST/, '/invoice?to=a&item=a;1;1', { method: 'POST' });
  assert.equal(answer.headers.get('allow'), 'GET');
}));

test('the server survives what it cannot write', () => withServer(async (base, folder) => {
  const [own] = fs.readdirSync(folder);
  fs.rmdirSync(path.join(folder, own));
  const { error } = console;
  const errors = [];
  console.error = (each) => errors.push(each);
  const answer = await fetch(`${base}/invoice?to=a&item=a;1;1`);
  console.error = error;
  assert.equal(answer.status, 500);
  assert.ok(!(await answer.text()).includes(folder));
  assert.equal(errors.length, 1);
  assert.equal(errors[0].number, 76);
}));

test('the server survives who does not wait', () => withServer(async (base, folder) => {
  await Promise.all(Array.from({ length: 8 }, (_, i) => new Promise((resolve) => {
    const request = http.get(`${base}/invoice?to=a${'&item=a;1;1'.repeat(400)}`);
    request.on('error', resolve);
    if (i % 2 === 0) request.on('response', () => request.destroy()).on('close', resolve);
    else request.on('socket', (socket) => socket.on('connect', () => request.destroy()));
  })));
  assert.equal((await fetch(`${base}/invoice?to=a&item=a;1;1`)).status, 200);
  assert.deepEqual(filesIn(folder), []);
}));

test('the server as a program', async () => {
  const server = spawn(process.execPath, [path.join(examples, 'server.js'), '0']);
  const [line] = await once(server.stdout.setEncoding('utf8'), 'data');
  const answer = await fetch(`${line.trim()}?to=a&item=a;1;1`,
    { headers: { connection: 'close' } });
  const { byteLength } = await answer.arrayBuffer();
  assert.equal(byteLength, Number(answer.headers.get('content-length')));
  server.kill('SIGTERM');
  assert.deepEqual(await once(server, 'exit'), [0, null]);
});
