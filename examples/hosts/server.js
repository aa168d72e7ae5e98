'use strict';

// A server that answers with a PDF: an invoice for what the query says.
//
//   npm install ../../build/hosts/node && node server.js 8080
//   curl -o invoice.pdf 'http://127.0.0.1:8080/invoice?to=Ada+Lovelace&item=Desk+lamp;2;49.50'

const { randomUUID } = require('node:crypto');
const { mkdtempSync, rmSync } = require('node:fs');
const { open, unlink } = require('node:fs/promises');
const http = require('node:http');
const os = require('node:os');
const path = require('node:path');
const { pipeline } = require('node:stream/promises');
const { Invoice } = require('./invoice');

// What is wrong with a request, with the status that says so.
class Refusal extends Error {
  constructor(status, message, headers = {}) {
    super(message);
    this.status = status;
    this.headers = headers;
  }
}

const MOST_ITEMS = 500;

// item=Desk lamp;2;49.50
function itemOf(text) {
  const [description, quantity, price, ...rest] = text.split(';');
  const numbers = [quantity, price].map((number) => number?.trim() ? Number(number) : NaN);
  if (rest.length > 0 || !numbers.every((number) => number >= 0 && number <= 1e6)) {
    throw new Refusal(400, `'${text}' is not an item: description;quantity;price`);
  }
  return { description, quantity: numbers[0], price: numbers[1] };
}

function orderOf(query) {
  const items = query.getAll('item').map(itemOf);
  if (!query.get('to')) throw new Refusal(400, "'to' is missing: whom the invoice is for");
  if (items.length === 0) throw new Refusal(400, "'item' is missing: description;quantity;price");
  if (items.length > MOST_ITEMS) throw new Refusal(400, `more than ${MOST_ITEMS} items`);
  return {
    to: query.get('to'),
    address: (query.get('address') ?? '').split(/\s*,\s*/).join('\r\n'),
    number: query.get('number') ?? '1',
    date: query.get('date') ?? new Date().toISOString().slice(0, 10),
    items,
  };
}

// The library writes files. This one has no name any more when it is read, so that nothing is left
// behind, however the request ends.
async function fileOf(invoice, folder) {
  const name = path.join(folder, `${randomUUID()}.pdf`);
  try {
    invoice.save(name);
    return await open(name);
  } finally {
    await unlink(name).catch(() => {});
  }
}

async function answer(request, response, folder) {
  if (request.method !== 'GET') {
    throw new Refusal(405, `${request.method} is not answered`, { Allow: 'GET' });
  }
  const { pathname, searchParams } = new URL(request.url, 'http://localhost');
  if (pathname !== '/invoice') throw new Refusal(404, `there is nothing at ${pathname}`);
  const file = await fileOf(new Invoice(orderOf(searchParams)), folder);
  response.writeHead(200, {
    'Content-Type': 'application/pdf',
    'Content-Length': (await file.stat()).size,
    'Content-Disposition': 'inline; filename="invoice.pdf"',
  });
  await pipeline(file.createReadStream(), response);
}

function refuse(response, error) {
  if (response.headersSent) {
    response.destroy();
    return;
  }
  const isRefusal = error instanceof Refusal;
  if (!isRefusal) console.error(error);
  response.writeHead(isRefusal ? error.status : 500, {
    'Content-Type': 'text/plain; charset=utf-8', ...error.headers,
  });
  response.end(`${isRefusal ? error.message : 'the invoice could not be written'}\n`);
}

function createServer() {
  const folder = mkdtempSync(path.join(os.tmpdir(), 'invoices-'));
  return http.createServer((request, response) => {
    answer(request, response, folder).catch((error) => refuse(response, error));
  }).on('close', () => rmSync(folder, { recursive: true, force: true }));
}

if (require.main === module) {
  const server = createServer().listen(Number(process.argv[2] ?? 8080), '127.0.0.1', () => {
    console.log(`http://127.0.0.1:${server.address().port}/invoice`);
  });
  for (const signal of ['SIGINT', 'SIGTERM']) process.on(signal, () => server.close());
}

module.exports = { createServer };
