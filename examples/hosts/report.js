'use strict';

// A small report: text, a box, a picture, a link, bookmarks.
//
//   npm install ../../build/hosts/node && node report.js picture.jpg report.pdf

const folivar = require('folivar');

function addBookmark(bookmarks, title, page) {
  const bookmark = bookmarks.Add();
  bookmark.Title = title;
  bookmark.Destination.page = page;
  bookmark.Destination.DestinationMode = folivar.dsFit;
  return bookmark;
}

function writeReport(pictureFile, reportFile) {
  const document = new folivar.PDFDocument();
  const cover = document.Pages.Add('cover');
  const details = document.Pages.Add('details');

  const heading = document.Fonts.Add('Times-Bold');
  heading.Size = 24;
  cover.Font = heading;
  cover.DrawText('Quarterly report', 72, 720);

  cover.Font = document.Fonts.Add('Helvetica');
  const box = cover.TextBoxes.Add();
  box.Move(72, 690, 300, 60);
  box.SetMargins(6, 6, 6, 6);
  box.Text =
    'Orders were up by a third. What the harbour shipped, and to whom, is on the next page.';
  box.SelStart = 0;
  box.SelLength = 26;
  box.SelFont = document.Fonts.Add('Helvetica-Bold');
  box.BorderColor = 0x5f4e1f; // blue, green, red

  const picture = document.Images.Add();
  picture.FileName = pictureFile;
  cover.DrawImage(picture, 72, 400, 300, 200);

  cover.DrawText('See the details', 72, 360);
  const link = cover.HyperLinks.Add();
  link.SetRegion(70, 355, 80, 16);
  link.BorderWidth = 0;
  link.Destination.page = details;
  link.Destination.DestinationMode = folivar.dsFit;

  details.DrawText('Details', 72, 720);
  details.DrawLine(72, 712, 372, 712);

  const report = addBookmark(document.Bookmarks, 'Quarterly report', cover);
  report.Expanded = true;
  addBookmark(report.SubBookmarks, 'Details', details);

  document.SavePDFFile(reportFile);
}

const [pictureFile, reportFile] = process.argv.slice(2);
try {
  writeReport(pictureFile, reportFile);
} catch (error) {
  console.error(`report: ${error.message}`);
  process.exitCode = 1;
}
