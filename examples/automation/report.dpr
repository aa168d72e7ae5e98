// A small report: text, a box, a picture, a link, bookmarks. Not run by the tests.
//
//   dcc32 report.dpr && report picture.jpg report.pdf      (dcc64 for the 64-bit component)

program report;

{$APPTYPE CONSOLE}

uses
  ActiveX, ComObj, SysUtils;

const
  dsFit = 1;

function AddBookmark(const Bookmarks: OleVariant; const Title: string;
  const Page: OleVariant): OleVariant;
begin
  Result := Bookmarks.Add;
  Result.Title := Title;
  Result.Destination.page := Page;
  Result.Destination.DestinationMode := dsFit;
end;

procedure WriteReport(const PictureFile, ReportFile: string);
var
  Document, Cover, Details, Heading, Box, Picture, Link, Bookmark: OleVariant;
begin
  Document := CreateOleObject('Folivar.PDFDocument');
  Cover := Document.Pages.Add('cover');
  Details := Document.Pages.Add('details');

  Heading := Document.Fonts.Add('Times-Bold');
  Heading.Size := 24;
  Cover.Font := Heading;
  Cover.DrawText('Quarterly report', 72, 720);

  Cover.Font := Document.Fonts.Add('Helvetica');
  Box := Cover.TextBoxes.Add;
  Box.Move(72, 690, 300, 60);
  Box.SetMargins(6, 6, 6, 6);
  Box.Text := 'Orders were up by a third. What the harbour shipped, and to whom, is on the next page.';
  Box.SelStart := 0;
  Box.SelLength := 26;
  Box.SelFont := Document.Fonts.Add('Helvetica-Bold');
  Box.BorderColor := $5F4E1F; // blue, green, red

  Picture := Document.Images.Add;
  Picture.FileName := PictureFile;
  Cover.DrawImage(Picture, 72, 400, 300, 200);

  Cover.DrawText('See the details', 72, 360);
  Link := Cover.HyperLinks.Add;
  Link.SetRegion(70, 355, 80, 16);
  Link.BorderWidth := 0;
  Link.Destination.page := Details;
  Link.Destination.DestinationMode := dsFit;

  Details.DrawText('Details', 72, 720);
  Details.DrawLine(72, 712, 372, 712);

  Bookmark := AddBookmark(Document.Bookmarks, 'Quarterly report', Cover);
  Bookmark.Expanded := True;
  AddBookmark(Bookmark.SubBookmarks, 'Details', Details);

  Document.SavePDFFile(ReportFile);
end;

begin
  CoInitialize(nil);
  try
    WriteReport(ParamStr(1), ParamStr(2));
  except
    on E: EOleException do
    begin
      Writeln(ErrOutput, E.Message);
      ExitCode := 1;
    end;
  end;
  CoUninitialize;
end.
