// What the types let through, and what they do not.

import folivar = require('folivar');

const document: folivar.PDFDocument = new folivar.PDFDocument();
const { Pages } = document;
export const other = folivar.PDFDocument();

// Collections
const page: folivar.PDFPage = Pages.Add('a');
Pages.Add();
Pages.Add('b', undefined, 'a');
Pages.Add('c', { Before: 1 });
Pages.Add({ sKey: 'd', After: 'c' });
export const found: folivar.PDFPage[] = [Pages('a'), Pages(1), Pages[1]!, Pages.Item('a')];
export const keys: string[] = [...Pages].map((each) => each.Key);
for (const each of Pages) each.DrawText('text', 1, 2);
const count: number = Pages.count;
export const face: string = document.Fonts('Helvetica', folivar.fontType1).FontFace;

// Members
page.Width = 200;
page.Font = document.Fonts.Add('Courier');
page.Font!.Underline = true;
page.Font!.Underline = 1;
export const underlined: boolean = page.Font!.Underline;
page.Thumbnail = null;
page.DrawTextAligned('text', 1, 2, 3, 4, folivar.PDFHorzTextAlignment.htaCenter, 1);
page.DrawRect(1, 2, 3, 4, undefined, true);
page.GraphicsState.FillGrayColor = 0.5;
const { x, y }: { x: number; y: number } = page.GetCurPos();
export const { Width, Height } = page.Font!.GetTextExtents('text');
page.Tag = new Map([[x, y]]);
document.Tag = page.Tag.size;

// Events, errors and warnings
const stop: () => void = page.PageRemoved((removed) => removed.Key.length);
stop();
folivar.warnings((text) => text.length);
folivar.warnings(console);
folivar.warnings(null);
try {
  Pages(count + 1);
} catch (error) {
  if (!(error instanceof folivar.Error)) throw error;
  const told: [number, string, string] = [error.number, error.member, error.message];
  console.warn(told);
}
export const instance: boolean = page instanceof folivar.PDFPage;
export const two: 2 = folivar.htaCenter;
export const version: string = folivar.version;

// Never called: each of these lines is wrong.
export function wrong(): void {
  // @ts-expect-error: there is no such member
  page.DrawTxt('text', 1, 2);
  // @ts-expect-error: nor such an attribute
  page.other = 5;
  // @ts-expect-error: y is missing
  page.DrawText('text', 1);
  // @ts-expect-error: one too many
  page.DrawText('text', 1, 2, 3);
  // @ts-expect-error: a text is no number
  page.DrawText('text', '1', 2);
  // @ts-expect-error: a flag is no number
  page.Width = true;
  // @ts-expect-error: a page is no image
  page.DrawImage(page, 1, 2);
  // @ts-expect-error: there is no such parameter
  Pages.Add('e', { Befor: 1 });
  // @ts-expect-error: it is there already
  Pages.Add('e', { sKey: 'f' });
  // @ts-expect-error: a key cannot be changed
  page.Key = 'b';
  // @ts-expect-error: nor can a constant
  folivar.htaLeft = 1;
  // @ts-expect-error: a document makes them
  new folivar.PDFPage();
  // @ts-expect-error: the faces are no list
  [...document.Fonts];
  // @ts-expect-error: a handler is a function
  page.PageRemoved('handler');
  // @ts-expect-error: it gets the page
  page.PageRemoved((text: string) => text);
  // @ts-expect-error: there may be none
  document.Bookmarks(1).Destination.page.Key;
  // @ts-expect-error: bytes are no text
  page.DrawText(new Uint8Array(1), 1, 2);
}
