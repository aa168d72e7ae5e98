'use strict';

// Makes the module of what folivar.node tells of the library: of its classes and constants.

const { inspect } = require('node:util');
const native = require('./folivar.node');

class FolivarError extends Error {
  constructor(number, member, text) {
    super(text);
    this.number = number;
    this.member = member;
  }
}
Object.defineProperty(FolivarError, 'name', { value: 'Error' });
Object.defineProperty(FolivarError.prototype, 'name', { value: 'folivar.Error' });

// Objects

// What an object keeps alive is in a private field, where nobody sees it.
class Keeper extends class { constructor(object) { return object; } } {
  #kept;
  constructor(object, kept) {
    super(object);
    this.#kept = kept;
  }
}

function make(type, kept) {
  const object = type.item ? makeCallable(type) : type.makePlain();
  new Keeper(object, kept);
  return object;
}

// Makes what is no collection: generators that never run. They are the plainest objects that can
// be sent to no other thread; a copy there would stand for nothing.
function plainMaker(prototype) {
  const make = function* () {};
  make.prototype = prototype;
  return make;
}

// A collection: a function that gives a member, pages('a'), and knows its keys, 'a' in pages.
function makeCallable({ name, item, prototype }) {
  const collection = (...keys) => collection[item](...keys);
  delete collection.length;
  Object.defineProperty(collection, 'name', { value: name });
  return Object.setPrototypeOf(collection, new Proxy(Object.create(prototype), {
    has(target, key) {
      if (Reflect.has(target, key)) return true;
      return typeof key === 'string' && 'KeyExists' in prototype &&
        collection.KeyExists(positionOf(key) ?? key);
    },
  }));
}

// pages[1] asks for the name '1'. Undefined for what is not spelled like a number.
function positionOf(name) {
  const position = Number(name);
  return Number.isFinite(position) && String(position) === name ? position : undefined;
}

// Names

// What the language and its tools ask every object for, to find out whether it is a promise, say,
// or a URL.
const ASKED_FOR = new Set(['href', 'inspect', 'then', 'toJSON']);
const isTheLanguages = (name) =>
  typeof name === 'symbol' || name in Object.prototype || ASKED_FOR.has(name);

// Where the lookup of a member ends up that is not spelled like any.
function unknownMembers(type) {
  const members = Object.keys(type.prototype);
  const spellings = new Map(members.map((name) => [name.toLowerCase(), name]));
  const find = (name) => typeof name === 'string' ? spellings.get(name.toLowerCase()) : undefined;
  const refuse = (name) => {
    const near = typeof name === 'string' ? nearest(name, members) : undefined;
    throw new TypeError(`${type.name} has no member '${String(name)}'` +
      (near ? `; did you mean '${near}'?` : ''));
  };
  return new Proxy({}, {
    get(target, name, receiver) {
      const known = find(name);
      if (known) return receiver[known];
      if (isTheLanguages(name)) return Reflect.get(target, name, receiver);
      const position = type.members && positionOf(name);
      return position === undefined ? refuse(name) : receiver[type.item](position);
    },
    set(target, name, value, receiver) {
      return Reflect.set(receiver, find(name) ?? refuse(name), value);
    },
    has: (target, name) => find(name) !== undefined || Reflect.has(target, name),
  });
}

// The name that differs in the fewest letters, if they are few.
function nearest(wanted, names) {
  let best, fewest = 1 + wanted.length / 3;
  for (const name of names) {
    const distance = distanceOf(wanted.toLowerCase(), name.toLowerCase());
    if (distance < fewest) [best, fewest] = [name, distance];
  }
  return best;
}

// How many letters have to be added, taken away or changed.
function distanceOf(a, b) {
  let above = Array.from({ length: b.length + 1 }, (_, j) => j);
  for (let i = 1; i <= a.length; ++i) {
    const row = [i];
    for (let j = 1; j <= b.length; ++j) {
      row[j] = Math.min(row[j - 1] + 1, above[j] + 1, above[j - 1] + (a[i - 1] !== b[j - 1]));
    }
    above = row;
  }
  return above[b.length];
}

// Classes

// Whatever cannot be read or set says so, in sloppy code too. So a method is a property that
// cannot be set.
function protectMembers({ name: type, prototype }) {
  for (const [name, member] of Object.entries(Object.getOwnPropertyDescriptors(prototype))) {
    const refuse = (what) => () => {
      throw new TypeError(`${type}.${name} cannot be ${what}`);
    };
    const get = member.value ? () => member.value : member.get ?? refuse('read');
    const set = member.set ?? refuse('set');
    Object.defineProperty(prototype, name, { get, set, enumerable: false });
  }
}

// page.PageRemoved(handler) subscribes and returns a function that unsubscribes.
function addEvents({ events, prototype }) {
  for (const [name, subscribe] of Object.entries(events)) {
    prototype[name] = function (handler) {
      const subscription = subscribe.call(this, handler);
      return () => native.unsubscribe(this, subscription);
    };
  }
}

function represent() {
  const { name } = this.constructor;
  const key = 'Key' in this.constructor.prototype ? this.Key : '';
  return `<folivar.${name}${key && ` ${inspect(key)}`}>`;
}

function addLanguage({ name, members, prototype }, constructor) {
  const hidden = (value) => ({ value, writable: true, configurable: true });
  Object.defineProperties(prototype, {
    constructor: hidden(constructor),
    [Symbol.toStringTag]: hidden(name),
    [inspect.custom]: hidden(represent),
  });
  if (!members) return;
  Object.defineProperty(prototype, Symbol.iterator,
    hidden(function () { return members.call(this)[Symbol.iterator](); }));
}

function classOf(type) {
  const { name, prototype } = type;
  const constructor = { [name]: function () {
    if (!type.isCreatable) throw new TypeError(`${name} cannot be created: a document makes it`);
    // Its objects would not be of the class that extends this one.
    if (new.target && new.target !== constructor) throw new TypeError(`${name} cannot be extended`);
    return native.create(name, showWarning);
  } }[name];
  Object.defineProperty(constructor, 'prototype', { value: prototype, writable: false });
  type.makePlain = plainMaker(prototype);
  addEvents(type);
  Object.setPrototypeOf(prototype, unknownMembers(type));
  protectMembers(type);
  addLanguage(type, constructor);
  return constructor;
}

// Warnings

let showWarning = null;

// Where the warnings of documents go that are made from now on: to a function or, console say, to
// an object's method warn; for null to where FOLIVAR_WARNINGS says.
function warnings(listener) {
  if (listener === null || listener === undefined) {
    showWarning = null;
  } else if (typeof listener === 'function') {
    showWarning = listener;
  } else if (typeof listener.warn === 'function') {
    showWarning = (text) => listener.warn(text);
  } else {
    throw new TypeError('warnings takes a function, an object with a method warn, or null');
  }
}

// What a handler has thrown where the library drops it.
function report(thrown) {
  process.emitWarning(thrown instanceof Error ? thrown : inspect(thrown));
}

native.connect(native.classes, { Error: FolivarError, make, report });
module.exports = { Error: FolivarError, version: native.version, warnings };
for (const type of native.classes) module.exports[type.name] = classOf(type);
for (const [name, constants] of Object.entries(native.enumerations)) {
  module.exports[name] = Object.freeze(constants);
  Object.assign(module.exports, constants);
}
Object.freeze(module.exports);
