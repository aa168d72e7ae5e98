// A small report: text, a box, a picture, a link, bookmarks.
//
//   cc report.c $(pkg-config --cflags --libs folivar-c) -o report && ./report PICTURE PDF

#include <folivar.h>
#include <stdio.h>
#include <stdlib.h>

// Ends the program when a call has failed.
static void require(int32_t error) {
  if (error == 0) return;
  fprintf(stderr, "report: %s\n", folivar_last_error()->text);
  exit(1);
}

static folivar_PDFFont* add_font(folivar_PDFDocument* document, const char* face, float size) {
  folivar_PDFFonts* fonts;
  folivar_PDFFont* font;
  require(folivar_PDFDocument_Fonts(document, &fonts));
  require(folivar_PDFFonts_Add(fonts, face, folivar_fontType1, false, &font));
  require(folivar_PDFFont_SetSize(font, size));
  folivar_release(fonts);
  return font;
}

static void set_font(folivar_PDFPage* page, folivar_PDFDocument* document, const char* face,
                     float size) {
  folivar_PDFFont* font = add_font(document, face, size);
  require(folivar_PDFPage_SetFont(page, font));
  folivar_release(font);
}

static void lead_to(folivar_PDFPage* page, folivar_PDFLinkDestination* destination) {
  require(folivar_PDFLinkDestination_SetPage(destination, page));
  require(folivar_PDFLinkDestination_SetDestinationMode(destination, folivar_dsFit));
}

static folivar_PDFBookmark* add_bookmark(folivar_PDFBookmarks* bookmarks, const char* title,
                                         folivar_PDFPage* page) {
  folivar_PDFBookmark* bookmark;
  folivar_PDFLinkDestination* destination;
  require(folivar_PDFBookmarks_Add(bookmarks, "", folivar_missing(), folivar_missing(), &bookmark));
  require(folivar_PDFBookmark_SetTitle(bookmark, title));
  require(folivar_PDFBookmark_Destination(bookmark, &destination));
  lead_to(page, destination);
  folivar_release(destination);
  return bookmark;
}

static folivar_PDFPage* add_page(folivar_PDFDocument* document, const char* key) {
  folivar_PDFPages* pages;
  folivar_PDFPage* page;
  require(folivar_PDFDocument_Pages(document, &pages));
  require(folivar_PDFPages_Add(pages, key, folivar_missing(), folivar_missing(), &page));
  folivar_release(pages);
  return page;
}

static void add_text_box(folivar_PDFPage* page, folivar_PDFDocument* document) {
  folivar_PDFTextBoxes* boxes;
  folivar_PDFTextBox* box;
  folivar_PDFFont* bold;
  require(folivar_PDFPage_TextBoxes(page, &boxes));
  require(folivar_PDFTextBoxes_Add(boxes, "", folivar_missing(), folivar_missing(), &box));
  require(folivar_PDFTextBox_Move(box, 72, folivar_number(690), folivar_number(300),
                                  folivar_number(60)));
  require(folivar_PDFTextBox_SetMargins(box, 6, 6, 6, 6));
  require(folivar_PDFTextBox_SetText(
      box,
      "Orders were up by a third. What the harbour shipped, and to whom, is on the next page."));
  require(folivar_PDFTextBox_SetSelStart(box, 0));
  require(folivar_PDFTextBox_SetSelLength(box, 26));
  bold = add_font(document, "Helvetica-Bold", 10);
  require(folivar_PDFTextBox_SetSelFont(box, bold));
  require(folivar_PDFTextBox_SetBorderColor(box, 0x5F4E1F));  // blue, green, red
  folivar_release(bold);
  folivar_release(box);
  folivar_release(boxes);
}

static void draw_picture(folivar_PDFPage* page, folivar_PDFDocument* document, const char* file) {
  folivar_PDFImages* images;
  folivar_PDFImage* picture;
  require(folivar_PDFDocument_Images(document, &images));
  require(folivar_PDFImages_Add(images, "", folivar_missing(), folivar_missing(), &picture));
  require(folivar_PDFImage_SetFileName(picture, file));
  require(folivar_PDFPage_DrawImage(page, picture, 72, 400, folivar_number(300),
                                    folivar_number(200), true));
  folivar_release(picture);
  folivar_release(images);
}

static void add_link(folivar_PDFPage* page, folivar_PDFPage* target) {
  folivar_PDFHyperLinks* links;
  folivar_PDFHyperLink* link;
  folivar_PDFLinkDestination* destination;
  require(folivar_PDFPage_HyperLinks(page, &links));
  require(folivar_PDFHyperLinks_Add(links, "", folivar_missing(), folivar_missing(), &link));
  require(folivar_PDFHyperLink_SetRegion(link, 70, 355, 80, 16));
  require(folivar_PDFHyperLink_SetBorderWidth(link, 0));
  require(folivar_PDFHyperLink_Destination(link, &destination));
  lead_to(target, destination);
  folivar_release(destination);
  folivar_release(link);
  folivar_release(links);
}

static void add_bookmarks(folivar_PDFDocument* document, folivar_PDFPage* cover,
                          folivar_PDFPage* details) {
  folivar_PDFBookmarks* bookmarks;
  folivar_PDFBookmarks* below;
  folivar_PDFBookmark* report;
  require(folivar_PDFDocument_Bookmarks(document, &bookmarks));
  report = add_bookmark(bookmarks, "Quarterly report", cover);
  require(folivar_PDFBookmark_SetExpanded(report, true));
  require(folivar_PDFBookmark_SubBookmarks(report, &below));
  folivar_release(add_bookmark(below, "Details", details));
  folivar_release(below);
  folivar_release(report);
  folivar_release(bookmarks);
}

int main(int argc, char** argv) {
  folivar_PDFDocument* document;
  folivar_PDFPage* cover;
  folivar_PDFPage* details;
  if (argc != 3) {
    fprintf(stderr, "report <picture> <report>\n");
    return 2;
  }
  require(folivar_PDFDocument_new(NULL, &document));
  cover = add_page(document, "cover");
  details = add_page(document, "details");

  set_font(cover, document, "Times-Bold", 24);
  require(folivar_PDFPage_DrawText(cover, "Quarterly report", 72, 720));
  set_font(cover, document, "Helvetica", 10);
  add_text_box(cover, document);
  draw_picture(cover, document, argv[1]);
  require(folivar_PDFPage_DrawText(cover, "See the details", 72, 360));
  add_link(cover, details);

  require(folivar_PDFPage_DrawText(details, "Details", 72, 720));
  require(folivar_PDFPage_DrawLine(details, 72, 712, 372, 712));
  add_bookmarks(document, cover, details);

  require(folivar_PDFDocument_SavePDFFile(document, argv[2]));
  folivar_release(details);
  folivar_release(cover);
  folivar_release(document);
  return 0;
}
