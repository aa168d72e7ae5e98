'use strict';

// index.d.ts: what TypeScript makes of it, and whether it tells what there is.

const assert = require('node:assert/strict');
const fs = require('node:fs');
const path = require('node:path');
const { test } = require('node:test');
const { folivar, moduleFolder } = require('./support');
const ts = require(process.env.FOLIVAR_TYPESCRIPT);

const programFile = path.join(__dirname, 'typings', 'program.ts');
const typingsFile = path.join(moduleFolder, 'index.d.ts');
const program = ts.createProgram([programFile], {
  allowJs: false,
  lib: ['lib.es2022.d.ts', 'lib.dom.d.ts'],
  module: ts.ModuleKind.Node16,
  moduleResolution: ts.ModuleResolutionKind.Node16,
  noUncheckedIndexedAccess: true,
  noEmit: true,
  paths: { folivar: [moduleFolder] },
  strict: true,
  target: ts.ScriptTarget.ES2022,
  types: [],
});
const checker = program.getTypeChecker();

// The exports of index.d.ts by their names.
const typings = checker.getSymbolAtLocation(program.getSourceFile(typingsFile));
const exported = new Map(checker.getExportsOfModule(typings).map((each) => [each.name, each]));

test('a program that is right where it should be and wrong where it should be', () => {
  const wrong = ts.getPreEmitDiagnostics(program);
  assert.equal(wrong.length, 0, ts.formatDiagnostics(wrong, {
    getCanonicalFileName: (name) => name, getCurrentDirectory: () => '', getNewLine: () => '\n',
  }));
});

test('what is right runs', () => {
  const { outputText } = ts.transpileModule(fs.readFileSync(programFile, 'utf8'), {
    compilerOptions: { module: ts.ModuleKind.CommonJS, target: ts.ScriptTarget.ES2022 },
  });
  const exports = {};
  const console = { warn: ([number]) => assert.equal(number, 9) };
  new Function('require', 'exports', 'console', outputText)(() => folivar, exports, console);
  assert.deepEqual(exports.keys, ['c', 'd', 'a', 'b', '']);
});

test('the names in the module', () => {
  const values = [...exported.values()].filter(({ flags }) => flags & ts.SymbolFlags.Value);
  assert.deepEqual(values.map(({ name }) => name).sort(), Object.keys(folivar).sort());
});

// Members as { DrawText: 'method', Key: 'read', Width: 'read set' }, from both sides.
function declaredMembers(name) {
  const members = {};
  for (const member of checker.getDeclaredTypeOfSymbol(exported.get(name)).getProperties()) {
    if (member.name.startsWith('__@')) continue;  // Symbol.iterator
    const has = (kind) => member.declarations.some((each) => each.kind === kind);
    const isReadOnly =
      ts.getCombinedModifierFlags(member.valueDeclaration) & ts.ModifierFlags.Readonly;
    if (has(ts.SyntaxKind.MethodSignature)) members[member.name] = 'method';
    else if (isReadOnly) members[member.name] = 'read';
    else if (has(ts.SyntaxKind.PropertySignature)) members[member.name] = 'read set';
    else members[member.name] = has(ts.SyntaxKind.GetAccessor) ? 'read set' : 'set';
  }
  return members;
}

// Whether the call of a getter or setter says this; without an object it always throws something.
function says(call, what) {
  try {
    call();
  } catch (error) {
    return error.message.endsWith(what);
  }
  return false;
}

function membersOf({ prototype }) {
  const members = {};
  for (const [name, { get, set }] of Object.entries(Object.getOwnPropertyDescriptors(prototype))) {
    if (!get) continue;  // constructor
    const sides = [!says(() => get.call(null), 'cannot be read') && 'read',
      !says(() => set.call(null), 'cannot be set') && 'set'];
    const isMethod = !says(() => get.call(null), '');
    members[name] = isMethod ? 'method' : sides.filter(Boolean).join(' ');
  }
  return members;
}

test('the members of each class', () => {
  const classes = Object.keys(folivar).filter((name) =>
    typeof folivar[name] === 'function' && name.startsWith('PDF'));
  assert.equal(classes.length, 18);
  for (const name of classes) {
    assert.deepEqual(membersOf(folivar[name]), declaredMembers(name), name);
  }
});

test('the values of the constants', () => {
  const constants = Object.entries(folivar).filter(([, value]) => typeof value === 'number');
  assert.equal(constants.length, 35);
  for (const [name, value] of constants) {
    assert.equal(checker.getTypeOfSymbol(exported.get(name)).value, value, name);
  }
});
