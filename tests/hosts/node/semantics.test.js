'use strict';

// What the object model is in JavaScript: a test for each promise.

const assert = require('node:assert/strict');
const { execFileSync, spawnSync } = require('node:child_process');
const fs = require('node:fs');
const path = require('node:path');
const { test } = require('node:test');
const { inspect } = require('node:util');
const { MessageChannel, Worker } = require('node:worker_threads');
const { areCollected, bytesOf, collect, folivar, moduleFolder, newFile } = require('./support');

const idl = fs.readFileSync(process.env.FOLIVAR_IDL, 'utf8');

// A document with pages of these keys.
function documentOf(...keys) {
  const document = folivar.PDFDocument();
  for (const key of keys) document.Pages.Add(key);
  return document;
}

const keysOf = (collection) => Array.from(collection, (member) => member.Key);

const raises = (number, call) =>
  assert.throws(call, (error) => error instanceof folivar.Error && error.number === number);

const refuses = (pattern, call) =>
  assert.throws(call, (error) => error instanceof TypeError && pattern.test(error.message));

test('identity', async () => {
  const document = documentOf('a');
  const page = document.Pages('a');
  assert.equal(document.Pages, document.Pages);
  assert.equal(document.Pages(1), page);
  assert.equal(page.ParentDocument, document);
  const bookmark = document.Bookmarks.Add();
  bookmark.Destination.page = page;
  assert.equal(bookmark.Destination.page, page);
  assert.equal([...document.Pages][0], page);

  const tag = { of: 'box' };
  const first = (() => {
    const box = page.TextBoxes.Add('box');
    box.Tag = tag;
    return new WeakRef(box);
  })();
  await collect();
  assert.equal(first.deref(), undefined);
  assert.equal(page.TextBoxes('box').Tag, tag);

  // Fetched anew before the end of the first one has been noticed.
  await collect();
  const before = new WeakRef(page.TextBoxes('box'));
  await new Promise((resolve) => setImmediate(resolve));
  globalThis.gc();
  assert.equal(before.deref(), undefined);
  const box = page.TextBoxes('box');
  await collect();
  assert.equal(page.TextBoxes('box'), box);
});

test('ownership', async () => {
  const page = documentOf('a').Pages('a');
  await collect();
  assert.equal(bytesOf(page.ParentDocument).subarray(0, 5).toString(), '%PDF-');

  const document = documentOf('a', 'b', 'c');
  const box = document.Pages('a').TextBoxes.Add();
  const boxes = document.Pages('b').TextBoxes;
  document.Pages.Remove('a');
  document.Pages.Remove('b');
  await collect();
  assert.equal(box.Parent.Key, 'a');
  assert.equal(boxes.Add().Parent.Key, 'b');
  const kept = document.Pages('c').TextBoxes.Add();
  await collect();
  assert.equal(kept.Parent, document.Pages('c'));
});

// An object of each class, all of one document, by what can still be asked of it.
function oneOfEach() {
  const document = documentOf('a');
  const page = document.Pages(1);
  const bookmark = document.Bookmarks.Add('m');
  const link = page.HyperLinks.Add('l');
  const boxes = page.TextBoxes;
  const template = document.Templates.Add('t');
  return [
    [document, () => document.Pages.count], [document.Pages, (pages) => pages.count],
    [page, () => page.ParentDocument.Pages.count], [bookmark, () => bookmark.Key.length],
    [document.Bookmarks, (bookmarks) => bookmarks.count], [link, () => link.Key.length],
    [link.Destination, (place) => place.DestinationMode + 1], [boxes, () => boxes.count + 1],
    [boxes.Add('b'), (box) => box.Key.length], [template, () => template.Key.length],
    [page.Font, (font) => font.Size / 10], [document.Images.Add('i'), (image) => image.Key.length],
    [page.GraphicsState, (state) => state.FillColor + 1],
    [document.ViewerPreferences, (preferences) => preferences.PageMode + 1],
  ].map(([object, ask]) => ({ object, ask: ask.length === 0 ? null : ask }));
}

test('release_order', async () => {
  for (let seed = 1; seed <= 8; ++seed) {
    let state = seed;
    const random = (below) => {
      state = (state * 48271) % 2147483647;
      return state % below;
    };
    const objects = oneOfEach();
    while (objects.length > 0) {
      objects.splice(random(objects.length), 1);
      await collect(2);
      for (const { object, ask } of objects) {
        if (ask) assert.ok(ask(object) >= 1, `seed ${seed}: ${inspect(object)}`);
        assert.match(inspect(object), /^<folivar\.PDF/, `seed ${seed}`);
      }
    }
  }
});

test('tag_cycle', async () => {
  assert.ok(await areCollected(() => {
    const document = documentOf('a');
    const page = document.Pages('a');
    const box = page.TextBoxes.Add();
    document.Tag = { page };
    page.Tag = document;
    box.Tag = () => [document, box];
    return [document, page, box, document.Tag, box.Tag];
  }));

  const { page, reference } = (() => {
    const document = documentOf('a');
    document.Tag = { far: 'away' };
    return { page: document.Pages('a'), reference: new WeakRef(document.Tag) };
  })();
  await collect();
  assert.deepEqual(page.ParentDocument.Tag, { far: 'away' });
  assert.equal(page.ParentDocument.Tag, reference.deref());
  page.ParentDocument.Tag = null;
  await collect();
  assert.equal(reference.deref(), undefined);
});

test('handler_cycle', async () => {
  assert.ok(await areCollected(() => {
    const document = documentOf('a');
    const page = document.Pages('a');
    const handler = () => [page, document];
    page.PageRemoved(handler);
    return [document, page, handler];
  }));

  const document = documentOf('a');
  const removed = [];
  document.Pages('a').PageRemoved((page) => removed.push(page.Key));
  await collect();
  document.Pages.Remove('a');
  assert.deepEqual(removed, ['a']);

  const unsubscribed = await areCollected(() => {
    const handler = () => {};
    documentKept.Pages('a').PageRemoved(handler)();
    return handler;
  });
  assert.ok(unsubscribed);
});
const documentKept = documentOf('a');

test('key_or_position', () => {
  const { Pages } = documentOf('b', '1');
  assert.equal(Pages('1').Key, '1');
  assert.equal(Pages(1).Key, 'b');
  assert.equal(Pages.Item('1'), Pages.Item(2));
  raises(5, () => Pages('2'));
  Pages.Remove('1');
  assert.deepEqual(keysOf(Pages), ['b']);
});

test('left_out', () => {
  const { Pages } = documentOf('a');
  assert.equal(Pages.Add().Key, '');
  Pages.Add('b', undefined, 1);
  Pages.Add('c', 1, undefined);
  Pages.Add('d', { Before: 1 });
  assert.deepEqual(keysOf(Pages), ['d', 'c', 'a', 'b', '']);

  const draw = (paint) => {
    const document = documentOf('a');
    paint(document.Pages('a'));
    return bytesOf(document);
  };
  const whole = draw((page) => page.DrawRect(1, 2, 3, 4, true, false));
  assert.deepEqual(draw((page) => page.DrawRect(1, 2, 3, 4)), whole);
  assert.deepEqual(draw((page) => page.DrawRect(1, 2, 3, 4, undefined, false)), whole);
  assert.notDeepEqual(draw((page) => page.DrawRect(1, 2, 3, 4, undefined, true)), whole);

  const box = Pages('a').TextBoxes.Add();
  box.Move(10, 20, 30, 40);
  box.Move(11, undefined, 31);
  assert.deepEqual([box.Left, box.Top, box.Width, box.Height], [11, 20, 31, 40]);
});

test('named_arguments', () => {
  const document = documentOf('a');
  const { Pages } = document;
  Pages.Add('b', { Before: 1 });
  Pages.Add({ After: 'b', sKey: 'c' });
  Pages.Add('d', { before: 'b' });
  Pages.Add('e', undefined, { after: 'd' });
  Pages.Add('f', Object.assign(Object.create(null), { Before: 1 }));
  Pages.Add('g', { Before: undefined });
  Pages.Add('h', {});
  assert.deepEqual(keysOf(Pages), ['f', 'd', 'e', 'b', 'c', 'a', 'g', 'h']);
  assert.equal(document.Fonts.Item({ FontType: 0, vntIndexKey: 1 }).FontFace,
    document.Fonts(1, 0).FontFace);

  refuses(/PDFPages\.Add .*'Befor'/, () => Pages.Add('i', { Befor: 1 }));
  refuses(/PDFPages\.Add.*'sKey'/, () => Pages.Add('i', { sKey: 'j' }));
  refuses(/PDFPages\.Add.*'before'/, () => Pages.Add('i', { Before: 1, before: 2 }));
  refuses(/PDFPage\.DrawText.*'y'/, () => Pages(1).DrawText('text', { x: 1 }));
  refuses(/PDFFont\.GetTextExtents.*'Width'/, () =>
    Pages(1).Font.GetTextExtents('text', { Width: 1 }));
  raises(13, () => Pages.Add({ sKey: 'i' }, 1));
  raises(13, () => Pages.Add('i', new Date()));
  assert.equal(Pages.count, 8);
});

test('no_object', () => {
  const document = documentOf('a');
  const page = document.Pages('a');
  page.Thumbnail = null;
  assert.equal(page.Thumbnail, null);
  raises(91, () => { page.Font = null; });
  const { Destination } = document.Bookmarks.Add();
  Destination.page = page;
  assert.equal(Destination.page, page);
  Destination.page = null;
  assert.equal(Destination.page, null);
  raises(91, () => page.DrawImage(null, 1, 2));
});

test('null_result', () => {
  const document = documentOf('a');
  assert.equal(document.Bookmarks.Add().Destination.page, null);
  const box = document.Pages('a').TextBoxes.Add();
  box.Text = 'ab';
  box.SelStart = 0;
  box.SelLength = 2;
  // A standard face has no bold sister.
  box.SelFont = document.Fonts.Add('Liberation Sans', folivar.fontTrueType);
  box.SelLength = 1;
  box.SelBold = true;
  assert.equal(box.SelBold, true);
  box.SelLength = 2;
  assert.equal(box.SelBold, null);
});

test('null_argument', () => {
  const page = documentOf('a').Pages('a');
  raises(94, () => page.DrawText(null, 1, 2));
  raises(94, () => page.DrawText('text', null, 2));
  raises(94, () => page.DrawRect(1, 2, 3, 4, null));
  raises(94, () => { page.Width = null; });
  raises(94, () => { page.Font.Bold = null; });
  raises(94, () => { page.ParentDocument.Bookmarks.Add().Title = null; });
  raises(94, () => page.ParentDocument.Pages(null));
});

test('filled', () => {
  const page = documentOf('a').Pages('a');
  page.SetCurPos(3, 4.5);
  assert.deepEqual(page.GetCurPos(), { x: 3, y: 4.5 });
  assert.deepEqual(page.GetClipBox(), { Left: -1, Bottom: -1, Right: -1, Top: -1 });
  page.SetClipBox(1, 2, 3, 4);
  assert.deepEqual(page.GetClipBox(), { Left: 1, Bottom: 2, Right: 3, Top: 4 });
  const font = page.Font;
  assert.deepEqual(font.GetTextExtents('text'),
    { Width: font.TextWidth('text'), Height: font.TextHeight('text') });
  refuses(/GetTextExtents/, () => font.GetTextExtents('text', 1, 2));
});

test('collections', () => {
  const document = documentOf('a', 'b');
  const { Pages } = document;
  for (const page of [Pages('a'), Pages(1), Pages[1], Pages.Item('a'), Pages.Item(1)]) {
    assert.equal(page.Key, 'a');
  }
  assert.equal(Pages.count, 2);
  assert.ok('a' in Pages && 'A' in Pages && !('c' in Pages));
  assert.ok('Add' in Pages && !Pages.KeyExists('Add'));
  assert.ok(1 in Pages && 2 in Pages && !(0 in Pages) && !(3 in Pages));
  const keys = [];
  for (const page of Pages) keys.push(page.Key);
  assert.deepEqual(keys, ['a', 'b']);
  assert.ok([...Pages].every((page, i) => page === Pages(i + 1)));
  assert.ok(Pages instanceof folivar.PDFPages);

  const { Fonts } = document;
  assert.equal(Fonts('Helvetica', folivar.fontType1).FontFace, 'Helvetica');
  assert.equal(Fonts.Item(1, folivar.fontType1).FontFace, Fonts(1, 0).FontFace);
  assert.equal(Fonts.count(folivar.fontType1), 1);
  refuses(/PDFFonts/, () => Fonts[1]);
  assert.throws(() => [...Fonts], TypeError);
  assert.ok(!('Helvetica' in Fonts));
});

test('positions', () => {
  const { Pages } = documentOf('a', 'b');
  for (const position of [0, -1, 3]) {
    raises(9, () => Pages(position));
    raises(9, () => Pages[position]);
    raises(9, () => Pages.Item(position));
    raises(9, () => Pages.Remove(position));
  }
  assert.equal(Pages[2], Pages('b'));
});

test('walk', () => {
  const { Pages } = documentOf('a', 'b', 'c');
  const seen = [];
  for (const page of Pages) {
    seen.push(page.Key);
    Pages.Remove(page.Key);
    Pages.Add(`after ${page.Key}`);
  }
  assert.deepEqual(seen, ['a', 'b', 'c']);
  assert.deepEqual(keysOf(Pages), ['after a', 'after b', 'after c']);
});

test('constants', () => {
  const enumerations = [...idl.matchAll(/typedef enum (\w+) \{([^}]*)\}/g)];
  assert.equal(enumerations.length, 9);
  for (const [, name, body] of enumerations) {
    const expected = Object.fromEntries(
      [...body.matchAll(/(\w+) = (\d+)/g)].map(([, constant, value]) => [constant, Number(value)]));
    assert.deepEqual(folivar[name], expected);
    assert.ok(Object.isFrozen(folivar[name]));
    for (const constant of Object.keys(expected)) {
      assert.equal(folivar[constant], expected[constant]);
    }
  }
  const preferences = folivar.PDFDocument().ViewerPreferences;
  preferences.PageLayout = folivar.PDFPageLayoutStyle.plsOneColumn;
  assert.equal(preferences.PageLayout, folivar.plsOneColumn);
  preferences.PageLayout = 1;
  assert.equal(preferences.PageLayout, folivar.plsSinglePage);
  preferences.PageLayout = 77;
  assert.equal(preferences.PageLayout, 77);
});

test('names_without_case', () => {
  const document = documentOf('a');
  const page = document.pages('a');
  page.drawtext('x', 1, 2);
  page.width = 5;
  assert.equal(page.WIDTH, 5);
  assert.equal(page.Width, 5);
  assert.equal(document.PAGES.COUNT, 1);
  assert.ok('drawtext' in page);
  document.bookmarks.add().destination.Page = page;
  assert.equal(document.Bookmarks(1).Destination.page, page);
  assert.equal(folivar.htaleft, undefined);
  assert.equal(folivar.PDFHorzTextAlignment.HTALEFT, undefined);
});

test('unknown_member', () => {
  const { Pages } = documentOf('a');
  const page = Pages('a');
  assert.throws(() => page.DrawTxt('x', 1, 2),
    new TypeError("PDFPage has no member 'DrawTxt'; did you mean 'DrawText'?"));
  assert.throws(() => page.heigth,
    new TypeError("PDFPage has no member 'heigth'; did you mean 'Height'?"));
  assert.throws(() => page.entirelyElse, new TypeError("PDFPage has no member 'entirelyElse'"));
  assert.throws(() => Pages.Count2,
    new TypeError("PDFPages has no member 'Count2'; did you mean 'count'?"));
  refuses(/PDFPages has no member 'length'/, () => Pages.length);
  refuses(/PDFPage has no member '1'/, () => page[1]);
  assert.ok(!('DrawTxt' in page));
});

test('what the language asks for', async () => {
  const document = documentOf('a');
  const page = document.Pages('a');
  assert.equal(await page, page);
  assert.equal(await document.Pages, document.Pages);
  assert.equal(JSON.stringify({ page }), '{"page":{}}');
  assert.equal(`${page}`, '[object PDFPage]');
  assert.equal(page.constructor, folivar.PDFPage);
  assert.ok(page instanceof folivar.PDFPage && page instanceof Object);
  assert.ok(!(page instanceof folivar.PDFDocument));
  assert.equal(page[Symbol('any')], undefined);
  assert.equal(page.hasOwnProperty('Key'), false);
  assert.notDeepEqual(page, document);
  assert.deepEqual({ page }, { page });
  assert.throws(() => assert.equal(page, document.Pages.Add('b')), assert.AssertionError);
  assert.throws(() => assert.deepEqual([document.Pages], [document.Templates]),
    assert.AssertionError);
});

test('unknown_attribute', () => {
  const { Pages } = documentOf('a');
  const page = Pages('a');
  assert.throws(() => { page.Hight = 5; },
    new TypeError("PDFPage has no member 'Hight'; did you mean 'Height'?"));
  refuses(/PDFPage has no member 'other'/, () => { page.other = 5; });
  refuses(/PDFPages has no member 'other'/, () => { Pages.other = 5; });
  refuses(/PDFPages has no member '1'/, () => { Pages[1] = page; });
  refuses(/PDFPage has no member 'Symbol\(a\)'/, () => { page[Symbol('a')] = 5; });
  refuses(/PDFPage has no member 'toString'/, () => { page.toString = null; });
  assert.throws(() => Object.defineProperty(page, 'other', { value: 5 }), TypeError);
  // In sloppy code too.
  refuses(/'other'/, () => new Function('page', 'page.other = 5')(page));
  refuses(/'other'/, () => page.other);
  assert.deepEqual(Reflect.ownKeys(page), []);
});

test('read_only', () => {
  const document = documentOf('a');
  const page = document.Pages('a');
  refuses(/PDFPage\.Key cannot be set/, () => { page.Key = 'b'; });
  refuses(/PDFPage\.DrawText cannot be set/, () => { page.DrawText = () => {}; });
  refuses(/PDFDocument\.Pages cannot be set/, () => { document.pages = null; });
  refuses(/PDFPage\.PageRemoved cannot be set/, () => { page.PageRemoved = null; });
  refuses(/PDFGraphicsState\.FillGrayColor cannot be read/, () =>
    page.GraphicsState.FillGrayColor);
  // In sloppy code too.
  refuses(/cannot be set/, () => new Function('page', 'page.Key = 5')(page));
  refuses(/cannot be set/, () => new Function('page', 'page.DrawText = 5')(page));
  page.GraphicsState.FillGrayColor = 1;
  assert.equal(page.GraphicsState.FillColor, 0xffffff);
  assert.throws(() => page.DrawText.call(document, 'x', 1, 2), TypeError);
  assert.throws(() => page.DrawText.call({}, 'x', 1, 2), TypeError);
  assert.throws(() => page.DrawText.call(undefined, 'x', 1, 2), TypeError);
});

test('errors', () => {
  const { Pages } = documentOf('a');
  assert.throws(() => Pages(2), (error) => {
    assert.ok(error instanceof folivar.Error && error instanceof Error);
    assert.equal(error.number, 9);
    assert.equal(error.member, 'PDFPages.Item');
    assert.equal(error.message, 'PDFPages.Item: position 2 is outside 1 to 1');
    assert.match(error.stack, /^folivar\.Error: PDFPages\.Item: position[^]*semantics\.test\.js/);
    return true;
  });
  assert.throws(() => folivar.PDFDocument().SavePDFFile('/nowhere/at/all.pdf'),
    { number: 76, member: 'PDFDocument.SavePDFFile', message: /\/nowhere\/at\/all\.pdf/ });
});

test('argument_count', () => {
  const document = documentOf('a');
  const page = document.Pages('a');
  refuses(/PDFPage\.DrawText.*'y'/, () => page.DrawText('text', 1));
  refuses(/PDFPage\.DrawText.*'Text'/, () => page.DrawText());
  refuses(/PDFPage\.DrawText.*'x'/, () => page.DrawText('text', undefined, 2));
  refuses(/PDFPage\.DrawText.*3.*4/, () => page.DrawText('text', 1, 2, 3));
  refuses(/PDFPage\.GetCurPos.*0.*20/, () => page.GetCurPos(...Array(20).fill(1)));
  refuses(/PDFPages\.Item.*'vntIndexKey'/, () => document.Pages());
  refuses(/PDFFonts\.count.*'FontType'/, () => document.Fonts.count());
  refuses(/PDFGraphicsState\.Push.*0.*1/, () => page.GraphicsState.Push(1));
});

test('wrong_kind', () => {
  const document = documentOf('a');
  const page = document.Pages('a');
  raises(13, () => page.DrawText('text', '1', 2));
  raises(13, () => page.DrawText('text', true, 2));
  raises(13, () => page.DrawText(5, 1, 2));
  raises(13, () => page.DrawText(['text'], 1, 2));
  raises(13, () => page.DrawText('text', [], 2));
  raises(13, () => page.DrawText('text', () => 1, 2));
  raises(13, () => page.DrawText('text', Symbol('1'), 2));
  raises(13, () => page.DrawImage(page, 1, 2));
  raises(13, () => page.DrawImage({ not: 'ours' }, 1, 2, 3));
  raises(13, () => document.Pages(true));
  raises(13, () => document.Pages(page));
  raises(13, () => { page.Font = document; });
  raises(13, () => { page.Font = 'Helvetica'; });
  raises(13, () => { page.Width = undefined; });
  raises(13, () => { page.Width = {}; });
  raises(13, () => { page.Font.Bold = 'true'; });
  const box = page.TextBoxes.Add();
  raises(13, () => { box.SelColor = {}; });
  raises(13, () => { box.SelColor = page; });
  // What never raises finds nothing.
  for (const wrong of [[], new Date(), Symbol('a'), () => 1, page, true, null, Buffer.from('a')]) {
    assert.equal(document.Pages.KeyExists(wrong), false);
  }
  document.Pages.Add('b');
  document.Pages.ReOrder('a', undefined, 'b');
  assert.deepEqual([...document.Pages].map(({ Key }) => Key), ['b', 'a']);
  document.Pages.ReOrder('a', []);
  assert.deepEqual([...document.Pages].map(({ Key }) => Key), ['b']);
  page.Font.Underline = 1;
  assert.equal(page.Font.Underline, true);
  page.Font.Underline = 0;
  assert.equal(page.Font.Underline, false);
});

test('large_numbers', () => {
  const document = documentOf('a');
  const page = document.Pages('a');
  raises(6, () => { page.Width = 1e39; });
  raises(6, () => { page.Width = 10n ** 40n; });
  raises(6, () => page.DrawLineTo(1, -1e300));
  raises(6, () => document.Pages(2 ** 31));
  raises(6, () => document.Pages(10n ** 20n));
  raises(6, () => { page.GraphicsState.FillColor = 2 ** 40; });
  raises(6, () => { page.GraphicsState.FillColor = -(2n ** 40n); });
  page.Width = 200n;
  assert.equal(page.Width, 200);
  page.Height = 10n ** 30n;
  assert.equal(page.Height, Math.fround(1e30));
  page.Height = -(10n ** 30n);
  assert.equal(page.Height, -Math.fround(1e30));
  assert.equal(document.Pages(1n), page);
  const box = page.TextBoxes.Add();
  box.SelColor = 255n;
  assert.equal(box.SelColor, 255);
});

test('whole_numbers', () => {
  const { Pages } = documentOf('a', 'b', 'c');
  assert.equal(Pages.Item(1.5), Pages.Item(2));
  assert.equal(Pages.Item(2.5), Pages.Item(2));
  assert.equal(Pages[1.5], Pages[2]);
  raises(9, () => Pages.Item(0.5));
  assert.equal(Pages.Item(3.4999), Pages.Item(3));
});

test('text', () => {
  const document = documentOf();
  const texts = ['', 'Grüße', '日本語', '😀 beyond', 'a\0b', '\0', 'x'.repeat(510),
    'y'.repeat(511), 'z'.repeat(512), 'ä'.repeat(513), '😀'.repeat(100000)];
  for (const text of texts) {
    const page = document.Pages.Add(text);
    assert.equal(page.Key, text);
    page.Tag = text;
    assert.equal(page.Tag, text);
    const bookmark = document.Bookmarks.Add();
    bookmark.Title = text;
    assert.equal(bookmark.Title, text);
    if (text !== '') assert.equal(document.Pages(text), page);
  }
  const box = document.Pages(1).TextBoxes.Add();
  for (const text of texts) {
    box.Text = text;
    assert.equal(box.Text, text);
  }
  box.Text = '😀ab';
  box.SelStart = 2;
  box.SelLength = 1;
  assert.equal(box.SelText, 'a');
  // Several in one call, short and long.
  const [long, longer] = ['l'.repeat(400), 'm'.repeat(400)];
  document.Pages.Add(long);
  document.Pages.Add(longer, long);
  const keys = keysOf(document.Pages);
  assert.equal(keys.indexOf(longer) + 1, keys.indexOf(long));
});

test('lone_surrogates', () => {
  const document = documentOf();
  for (const text of ['\ud83d', '\ude00x', 'x\ud83d', '\ude00\ud83d']) {
    assert.equal(document.Pages.Add(text).Key, text);
    document.Tag = text;
    assert.equal(document.Tag, text);
    const bookmark = document.Bookmarks.Add();
    bookmark.Title = text;
    assert.equal(bookmark.Title, text);
  }
});

test('bytes', () => {
  const document = documentOf('a');
  for (const bytes of [Buffer.from('a'), new Uint8Array([97]), new ArrayBuffer(1)]) {
    raises(13, () => document.Pages.Add(bytes));
    raises(13, () => document.Pages(bytes));
    raises(13, () => document.Pages('a').DrawText(bytes, 1, 2));
    raises(13, () => { document.Bookmarks.Add().Title = bytes; });
  }
});

test('tags', async () => {
  const document = documentOf('a');
  const page = document.Pages('a');
  const tagged = [document, page, page.TextBoxes.Add(), document.Bookmarks.Add(),
    page.HyperLinks.Add(), document.Images.Add(), document.Templates.Add()];
  const values = ['text', '', 0, -0, 1.5, NaN, Infinity, 2 ** 53, true, false, null, undefined, 5n,
    2n ** 70n, Symbol('tag'), {}, [], () => {}, new Date(), Buffer.from('b'), document, page];
  for (const object of tagged) {
    assert.equal(object.Tag, null);
    for (const value of values) {
      object.Tag = value;
      assert.ok(Object.is(object.Tag, value), inspect(value));
    }
  }
  const last = { last: true };
  page.Tag = last;
  document.Tag = page.Tag;
  await collect();
  assert.equal(page.Tag, last);
  assert.equal(document.Tag, last);
});

test('page_removed', () => {
  const document = documentOf('a', 'b', 'c');
  const page = document.Pages('a');
  const heard = [];
  const unsubscribe = page.PageRemoved((removed) => heard.push(['first', removed === page]));
  page.PageRemoved((removed) => heard.push(['second', removed === page]));
  const third = page.PageRemoved(() => heard.push(['third']));
  third();
  assert.equal(third(), undefined);
  document.Pages.Remove('a');
  assert.deepEqual(heard, [['first', true], ['second', true]]);
  unsubscribe();

  const other = document.Pages('b');
  const order = [];
  const stops = [
    other.PageRemoved(() => {
      order.push(1);
      stops[0]();
      stops[1]();
      other.PageRemoved(() => order.push('late'));
    }),
    other.PageRemoved(() => order.push('never')),
    other.PageRemoved(() => order.push(3)),
  ];
  document.Pages.Remove('b');
  assert.deepEqual(order, [1, 3]);

  refuses(/PDFPage\.PageRemoved/, () => other.PageRemoved());
  refuses(/PDFPage\.PageRemoved/, () => other.PageRemoved({}));
  assert.throws(() => page.PageRemoved.call({}, () => {}), TypeError);
  page.pageremoved(() => {})();
});

test('handler_exception', () => {
  for (const thrown of [new Error('mine'), { any: 'value' }, 'text', undefined, null, 0]) {
    const document = documentOf('a');
    const heard = [];
    document.Pages('a').PageRemoved(() => { throw thrown; });
    document.Pages('a').PageRemoved(() => { heard.push(2); throw new Error('later'); });
    document.Pages('a').PageRemoved(() => heard.push(3));
    let caught = 'nothing';
    try {
      document.Pages.Remove('a');
    } catch (error) {
      caught = error;
    }
    assert.ok(Object.is(caught, thrown));
    assert.deepEqual(heard, [2, 3]);
    assert.equal(document.Pages.count, 0);
  }

  // A call within a handler has exceptions of its own.
  const document = documentOf('a', 'b');
  document.Pages('b').PageRemoved(() => { throw new Error('inner'); });
  document.Pages('a').PageRemoved(() => {
    assert.throws(() => document.Pages.Remove('b'), /inner/);
    raises(9, () => document.Pages(5));
  });
  document.Pages.Remove('a');
  assert.equal(document.Pages.count, 0);
});

test('dropped_exception', async () => {
  const warned = [];
  const listen = (warning) => warned.push(warning);
  process.on('warning', listen);
  const document = documentOf('a', 'b');
  const thrown = new Error('dropped');
  document.Pages('a').PageRemoved(() => { throw thrown; });
  document.Pages.ReOrder('a', undefined, 'b');
  document.Pages('b').PageRemoved(() => { throw 'a text'; });
  document.Pages.ReOrder('b', undefined, 'a');
  await new Promise((resolve) => setImmediate(resolve));
  process.off('warning', listen);
  assert.deepEqual(keysOf(document.Pages), ['a', 'b']);
  assert.equal(warned.length, 2);
  assert.equal(warned[0], thrown);
  assert.match(warned[1].message, /a text/);
});

// A member that warns: of a face that is none of the system's.
const warn = (document) => document.Fonts.Add('Nonesuch');

test('warnings_function', () => {
  const heard = [];
  folivar.warnings((text) => heard.push(text));
  const first = folivar.PDFDocument();
  folivar.warnings(() => { throw thrown; });
  const thrown = { from: 'warnings' };
  const second = folivar.PDFDocument();
  folivar.warnings(undefined);
  const third = folivar.PDFDocument();
  warn(first);
  assert.equal(heard.length, 1);
  assert.match(heard[0], /Nonesuch/);
  assert.throws(() => warn(second), (error) => error === thrown);
  assert.equal(heard.length, 1);
  process.env.FOLIVAR_WARNINGS = 'off';
  warn(third);
  delete process.env.FOLIVAR_WARNINGS;
  assert.equal(heard.length, 1);
  refuses(/warnings/, () => folivar.warnings('text'));
  refuses(/warnings/, () => folivar.warnings({}));
});

test('warnings_logger', async () => {
  class Logger {
    texts = [];
    warn(text) { this.texts.push(text); }
  }
  const logger = new Logger();
  folivar.warnings(logger);
  const document = folivar.PDFDocument();
  folivar.warnings(null);
  await collect();
  warn(document);
  assert.equal(logger.texts.length, 1);
  assert.match(logger.texts[0], /Nonesuch/);
});

test('warnings_environment', () => {
  const file = newFile('log');
  const script = `require(${JSON.stringify(moduleFolder)}).PDFDocument().Fonts.Add('Nonesuch')`;
  const said = (environment) => spawnSync(process.execPath, ['-e', script], {
    encoding: 'utf8',
    env: { ...process.env, NODE_OPTIONS: '', FOLIVAR_WARNINGS_FILE: file, ...environment },
  }).stderr;
  assert.match(said({ FOLIVAR_WARNINGS: 'err' }), /^.*Nonesuch.*\n$/);
  assert.match(said({ FOLIVAR_WARNINGS: '' }), /^.*Nonesuch.*\n$/);
  assert.equal(said({ FOLIVAR_WARNINGS: 'off' }), '');
  assert.ok(!fs.existsSync(file));
  assert.equal(said({ FOLIVAR_WARNINGS: 'log' }), '');
  assert.equal(said({ FOLIVAR_WARNINGS: 'log' }), '');
  assert.match(fs.readFileSync(file, 'utf8'), /^(.*Nonesuch.*\n){2}$/);
});

test('other_threads', async () => {
  const { writeDocument } = require('./document');
  const file = newFile();
  writeDocument(folivar, file);
  const files = [newFile(), newFile(), newFile()];
  await Promise.all(files.map((workerData) => new Promise((resolve, reject) => {
    new Worker(path.join(__dirname, 'document.js'), { workerData })
      .on('error', reject).on('exit', resolve);
  })));
  for (const other of files) assert.deepEqual(fs.readFileSync(other), fs.readFileSync(file));
});

test('other_document', () => {
  const document = documentOf('own');
  const other = documentOf('other');
  const page = other.Pages('other');
  const destination = document.Bookmarks.Add().Destination;
  const message = 'PDFLinkDestination.page: belongs to another document';
  assert.throws(() => { destination.page = page; }, { number: 5, message });
  assert.equal(destination.page, null);
  const own = document.Pages('own');
  raises(5, () => own.DrawTemplate(other.Templates.Add()));
  own.Tag = page;
  assert.equal(own.Tag, page);
});

test('two_threads', () => {
  const { port1, port2 } = new MessageChannel();
  const document = documentOf('a');
  for (const object of [document, document.Pages, document.Pages('a'), document.Pages(1).Font]) {
    assert.throws(() => port1.postMessage(object), { name: 'DataCloneError' });
    assert.throws(() => port1.postMessage({ within: [object] }), { name: 'DataCloneError' });
    assert.throws(() => structuredClone(object), { name: 'DataCloneError' });
  }
  port1.close();
  port2.close();
});

test('interpreters', async () => {
  for (let i = 0; i < 4; ++i) {
    const worker = new Worker(path.join(__dirname, 'document.js'), { workerData: 'forever' });
    await new Promise((resolve) => worker.once('message', resolve));
    assert.equal(await worker.terminate(), 1);
  }
  assert.equal(documentOf('a').Pages.count, 1);
});

test('creation', () => {
  const documents = [folivar.PDFDocument(), new folivar.PDFDocument()];
  for (const document of documents) assert.ok(document instanceof folivar.PDFDocument);
  assert.notEqual(documents[0], documents[1]);
  refuses(/PDFDocument/, () => new class extends folivar.PDFDocument {}());
  for (const name of Object.keys(folivar).filter((key) => /^PDF/.test(key))) {
    if (name === 'PDFDocument' || typeof folivar[name] !== 'function') continue;
    refuses(new RegExp(name), () => folivar[name]());
    refuses(new RegExp(name), () => new folivar[name]());
  }
  assert.equal([...idl.matchAll(/coclass (\w+)/g)].filter(([, name]) =>
    typeof folivar[name] === 'function' && folivar[name].name === name).length, 18);
});

test('representation', () => {
  const document = documentOf('a', '', "it's");
  assert.equal(inspect(document), '<folivar.PDFDocument>');
  assert.deepEqual(Array.from(document.Pages, (page) => inspect(page)),
    ["<folivar.PDFPage 'a'>", '<folivar.PDFPage>', '<folivar.PDFPage "it\'s">']);
  assert.equal(inspect({ pages: document.Pages }), '{ pages: <folivar.PDFPages> }');
  assert.equal(inspect(document.Pages(1).Font), '<folivar.PDFFont>');
});

test('documentation', () => {
  const typings = fs.readFileSync(path.join(moduleFolder, 'index.d.ts'), 'utf8');
  for (const [, help] of idl.replace(/^[^]*?library Folivar/, '')
    .matchAll(/helpstring\("([^"]*)"\)/g)) {
    if (help === 'Events of a page' || interfaceHelps.has(help)) continue;
    assert.ok(typings.includes(`/** ${help}. `), help);
  }
  assert.match(typings, new RegExp([
    '  /\\*\\* Draws text whose first baseline starts at a point\\. \\*/',
    '  DrawText\\(Text: string, x: number, y: number\\): void;'].join('\n')));
});
// Objects of a class have the class's help, not that of its interface.
const interfaceHelps = new Set([...idl.matchAll(
  /dual, oleautomation, nonextensible,\s+helpstring\("([^"]*)"\)/g)].map(([, help]) => help));

test('the version', () => {
  assert.match(folivar.version, /^\d+\.\d+\.\d+$/);
  const described = JSON.parse(fs.readFileSync(path.join(moduleFolder, 'package.json')));
  assert.equal(described.version, folivar.version);
  const loaded = execFileSync(process.execPath, ['-p', `require('${moduleFolder}').version`]);
  assert.equal(loaded.toString().trim(), folivar.version);
});
