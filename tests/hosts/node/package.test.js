'use strict';

// The package that npm makes of the module's folder.

const assert = require('node:assert/strict');
const { execFileSync } = require('node:child_process');
const fs = require('node:fs');
const path = require('node:path');
const { test } = require('node:test');
const { folivar, moduleFolder, newFile } = require('./support');

test('is installed and loaded', () => {
  const project = newFile('project');
  fs.mkdirSync(project);
  const npm = (...words) => execFileSync(process.env.FOLIVAR_NPM, words, {
    cwd: project, encoding: 'utf8', stdio: ['ignore', 'pipe', 'pipe'],
    env: { ...process.env, npm_config_cache: path.join(project, 'cache') },
  });
  const [{ filename, files }] = JSON.parse(npm('pack', '--json', moduleFolder));
  assert.deepEqual(files.map((file) => file.path).sort(),
    ['NOTICE.txt', 'folivar.node', 'index.d.ts', 'index.js', 'index.mjs',
      'package.json']);

  fs.writeFileSync(path.join(project, 'package.json'), '{"private": true}');
  npm('install', '--offline', '--no-audit', '--no-fund', `./${filename}`);
  const run = (...words) => JSON.parse(execFileSync(process.execPath, words,
    { cwd: project, encoding: 'utf8' }));
  assert.equal(run('-p', "JSON.stringify(require('folivar').version)"), folivar.version);

  // `import` finds the same names.
  const names = run('--input-type=module', '-e', `
    import folivar, { PDFDocument, htaCenter } from 'folivar';
    import * as all from 'folivar';
    if (new PDFDocument().Pages.count !== 0 || htaCenter !== 2) throw new Error();
    if (Object.keys(folivar).some((name) => all[name] !== folivar[name])) throw new Error();
    console.log(JSON.stringify(Object.keys(all)));`);
  assert.deepEqual(names.sort(), ['default', ...Object.keys(folivar)].sort());
});

test('exports nothing but what Node asks for', () => {
  const symbols = execFileSync('nm',
    ['-D', '--defined-only', path.join(moduleFolder, 'folivar.node')], { encoding: 'utf8' });
  assert.deepEqual(symbols.match(/\w+$/gm),
    ['napi_register_module_v1', 'node_api_module_get_api_version_v1']);
});
