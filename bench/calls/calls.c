#include <folivar.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <time.h>

// As calls.cpp, through the C library.

enum { LINES_OF_PAGE = 60, LINE_LENGTH = 80 };

typedef struct row {
  char line[LINE_LENGTH + 1];
  float y;
} row;

static void fail(const char* complaint) {
  fprintf(stderr, "calls: %s\n", complaint);
  exit(1);
}

static void check(int32_t error) {
  if (error != 0) fail(folivar_last_error()->text);
}

static void read_rows(const char* path, row* rows) {
  FILE* file = fopen(path, "rb");
  if (file == NULL) fail("there is no file of lines");
  for (int i = 0; i < LINES_OF_PAGE; ++i) {
    if (fread(rows[i].line, LINE_LENGTH + 1, 1, file) != 1) fail("too few lines");
    rows[i].line[LINE_LENGTH] = '\0';  // in place of the line end
    rows[i].y = 750.5F - 11.75F * (float)i;
  }
  fclose(file);
}

static long long nanoseconds(void) {
  struct timespec now;
  clock_gettime(CLOCK_MONOTONIC, &now);
  return now.tv_sec * 1000000000LL + now.tv_nsec;
}

// Empty ones.
static void add_pages(folivar_PDFDocument* document, folivar_PDFPage** pages, size_t count) {
  folivar_PDFPages* collection;
  check(folivar_PDFDocument_Pages(document, &collection));
  for (size_t i = 0; i < count; ++i) {
    check(folivar_PDFPages_Add(collection, "", folivar_missing(), folivar_missing(), &pages[i]));
  }
  folivar_release(collection);
}

static long long draw(const row* rows, folivar_PDFPage** pages, size_t page_count) {
  const long long start = nanoseconds();
  for (size_t page = 0; page < page_count; ++page) {
    for (int i = 0; i < LINES_OF_PAGE; ++i) {
      check(folivar_PDFPage_DrawText(pages[page], rows[i].line, 72, rows[i].y));
    }
  }
  return nanoseconds() - start;
}

int main(int argc, char** argv) {
  if (argc != 3) fail("arguments: LINES_FILE PAGES");
  row rows[LINES_OF_PAGE];
  read_rows(argv[1], rows);
  const size_t page_count = strtoul(argv[2], NULL, 10);
  folivar_PDFPage** pages = calloc(page_count, sizeof(folivar_PDFPage*));
  if (pages == NULL) fail("no memory");

  folivar_PDFDocument* document;
  check(folivar_PDFDocument_new(NULL, &document));
  add_pages(document, pages, page_count);
  printf("%lld\n", draw(rows, pages, page_count));
  for (size_t i = 0; i < page_count; ++i) folivar_release(pages[i]);
  folivar_release(document);
  free(pages);
  return 0;
}
