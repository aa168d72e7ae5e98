// Folivar for C (C99) and C++ (C++11), and for every language that can call C.
//
//   folivar_PDFDocument* document;
//   folivar_PDFPages* pages;
//   folivar_PDFPage* page;
//   if (folivar_PDFDocument_new(NULL, &document) != 0 ||
//       folivar_PDFDocument_Pages(document, &pages) != 0 ||
//       folivar_PDFPages_Add(pages, "a", folivar_missing(), folivar_missing(), &page) != 0 ||
//       folivar_PDFPage_DrawText(page, "Hello", 72, 720) != 0 ||
//       folivar_PDFDocument_SavePDFFile(document, "hello.pdf") != 0) {
//     fprintf(stderr, "%s\n", folivar_last_error()->text);
//   }
//
// The functions of this file are all that the library exports. What is called like a member, as
// folivar_PDFPage_DrawText, is an inline function of folivar_members.h, which is included below:
// one for each member of the object model, made from its one description. So the library's binary
// interface stays as it is when members are added.
//
// A function that can fail returns 0 or the number of an error, which folivar_last_error then
// describes. Nothing is thrown. An argument that a function only reads is borrowed for the call.
//
// A document, with all that belongs to it, is used by one thread at a time; a second one that calls
// meanwhile gets error 70. Documents do not disturb each other. Objects may be held and let go of
// at any time, in whatever thread, and in the midst of a call; what ends by that ends when no
// thread uses the document.

#ifndef FOLIVAR_H
#define FOLIVAR_H

// NOLINTBEGIN: this is C.

#include <stdbool.h>
#include <stddef.h>
#include <stdint.h>
#include <string.h>

#if defined(__GNUC__)
#define FOLIVAR_PUBLIC __attribute__((visibility("default")))
#else
#define FOLIVAR_PUBLIC
#endif

#ifdef __cplusplus
#define FOLIVAR_CAST(type, value) static_cast<type>(value)
extern "C" {
#else
#define FOLIVAR_CAST(type, value) ((type)(value))
#endif

// An object of any class. The same object is always the same pointer, as long as it is held.
//
// Who is given an object by a function holds it and lets go of it with folivar_release. What is
// held keeps its document, and a text box or the boxes of a page also the page or template. Objects
// may be let go of in any order.
typedef struct folivar_object folivar_object;

enum folivar_kind {
  FOLIVAR_MISSING = 0,  // an argument that was left out
  FOLIVAR_EMPTY = 1,    // no value yet: what a tag holds at first
  FOLIVAR_NULL = 2,     // no object; of a selection with several formats, no single value
  FOLIVAR_FLAG = 3,     // as.integer, 0 or 1
  FOLIVAR_INTEGER = 4,  // as.integer
  FOLIVAR_NUMBER = 5,   // as.number
  FOLIVAR_TEXT = 6,     // as.text, UTF-8, with.length bytes; a result also ends in a 0
  FOLIVAR_UTF16 = 7,    // as.utf16, with.length units, lone surrogates included
  FOLIVAR_OBJECT = 8,   // as.object
  FOLIVAR_ARRAY = 9,    // as.values, with.length values; only a result
  FOLIVAR_HOST = 10     // as.host, a pointer of the host's; only a tag
};

// A value of any kind: an argument or a result.
typedef struct folivar_value {
  int32_t kind;
  union {
    int64_t integer;
    double number;
    const char* text;
    const uint16_t* utf16;
    folivar_object* object;
    const struct folivar_value* values;
    void* host;
  } as;
  union {
    size_t length;
    // Of a tag that is set: called once, from whatever thread, when the library needs as.host no
    // more, also when setting fails. May be null. It must not wait for another thread.
    void (*release)(void* host);
  } with;
} folivar_value;

// A function of the host's that the library calls: with the text of a warning, or with the
// arguments of an event. They are borrowed for the call. It returns 0, or the number of an error
// that the member that gave the warning, or raised the event, then returns.
typedef struct folivar_callback {
  int32_t (*call)(void* context, const folivar_value* arguments, size_t count);
  // Called once, when the callback is needed no more, also when it could not be taken. May be null.
  void (*release)(void* context);
  void* context;
} folivar_callback;

// What went wrong in the call of this thread that failed last. The texts are UTF-8, never null, and
// good until the next call of this thread that fails.
typedef struct folivar_error {
  int32_t number;
  const char* member;  // "PDFPage.DrawLine"; empty where nobody has told
  const char* object;  // what the error is about: "file 'a.pdf'"; empty for the object called
  const char* cause;   // "cannot be written: Permission denied"
  const char* text;    // all of it, as it is shown to people
} folivar_error;

// Makes an object of the class with this name: a "PDFDocument". Its warnings go to `warnings`;
// where that is null, to where the environment variable FOLIVAR_WARNINGS says, which is read for
// each:
//   err  to standard error, a line each; the default
//   log  to the file that FOLIVAR_WARNINGS_FILE names, a line each, added at its end; without such
//        a file to standard error
//   off  nowhere
FOLIVAR_PUBLIC int32_t folivar_create(const char* class_name, const folivar_callback* warnings,
                                      folivar_object** result);

enum folivar_action {
  FOLIVAR_CALL = 1,  // a method
  FOLIVAR_GET = 2,   // a property; arguments are its parameters, if it has some
  FOLIVAR_SET = 4,   // a property; the argument is the new value
  // Added to one of these: texts of the result are FOLIVAR_UTF16, not FOLIVAR_TEXT.
  FOLIVAR_GIVE_UTF16 = 8
};

// Does with the object's member `id`, which folivar_class tells, what `action` says.
//
// `arguments` may be fewer than the member has parameters where the rest can be left out, and
// FOLIVAR_MISSING stands for one that is left out before others. Into those that the member fills
// (FOLIVAR_FILLED) it puts its numbers. Numbers are accepted in either form, FOLIVAR_INTEGER or
// FOLIVAR_NUMBER, for flags too, halves of whole numbers being rounded to even; nothing else is
// converted.
//
// `result` gets what the member gives, for folivar_clear, else FOLIVAR_EMPTY; it may be null where
// the member gives nothing. After a failure it is FOLIVAR_EMPTY.
//
// Besides the members' own errors raises 13 for an argument of a wrong kind or an object of another
// class, 5 for an object of another document, 94 for FOLIVAR_NULL where a number, flag or text is
// wanted, 6 for a number that is too large, 438 for a member or action that the object does not
// have, 450 for a wrong number of arguments, 91 for a null `object`, 70 while another thread uses
// the document.
FOLIVAR_PUBLIC int32_t folivar_invoke(folivar_object* object, int32_t id, int32_t action,
                                      folivar_value* arguments, size_t count,
                                      folivar_value* result);

// Lets go of what a result holds (a text, an object, the values of an array) and makes it
// FOLIVAR_EMPTY.
FOLIVAR_PUBLIC void folivar_clear(folivar_value* result);

// From now on the callback hears of the object's event `id`, until it is unsubscribed or the object
// ends. Handlers are called in the order in which they subscribed; while they run, they may
// subscribe and unsubscribe. Raises 438 for an event that the object does not have.
FOLIVAR_PUBLIC int32_t folivar_subscribe(folivar_object* object, int32_t id,
                                         const folivar_callback* handler, int64_t* subscription);
// A subscription that is over is passed over.
FOLIVAR_PUBLIC int32_t folivar_unsubscribe(folivar_object* object, int64_t subscription);

// Holds an object once more, and lets go of it once; null is passed over. They take every class.
FOLIVAR_PUBLIC void folivar_retain(void* object);
FOLIVAR_PUBLIC void folivar_release(void* object);

FOLIVAR_PUBLIC const folivar_error* folivar_last_error(void);

// For languages that are bound to this library

// A pointer of the binding's own that is kept with the object, for what stands for it there. Null
// at first; it stays for as long as the object lives, held or not.
FOLIVAR_PUBLIC void** folivar_slot(folivar_object* object);

// The document that the object belongs to, itself for a document; not to be released.
FOLIVAR_PUBLIC folivar_object* folivar_document(folivar_object* object);

enum folivar_type {
  FOLIVAR_TYPE_NONE = 0,         // gives nothing
  FOLIVAR_TYPE_FLAG = 1,         // FOLIVAR_FLAG
  FOLIVAR_TYPE_LONG = 2,         // FOLIVAR_INTEGER, 32 bits
  FOLIVAR_TYPE_SINGLE = 3,       // FOLIVAR_NUMBER, rounded to a single
  FOLIVAR_TYPE_TEXT = 4,         // FOLIVAR_TEXT or FOLIVAR_UTF16
  FOLIVAR_TYPE_ENUMERATION = 5,  // FOLIVAR_INTEGER; values that are not listed too
  FOLIVAR_TYPE_OBJECT = 6,       // FOLIVAR_OBJECT, FOLIVAR_NULL for none
  FOLIVAR_TYPE_VALUE = 7,        // any kind
  FOLIVAR_TYPE_TEXTS = 8,        // FOLIVAR_ARRAY of texts
  FOLIVAR_TYPE_OBJECTS = 9       // FOLIVAR_ARRAY of objects: the members of a collection
};

enum folivar_trait {
  FOLIVAR_OPTIONAL = 1,   // a parameter that may be left out
  FOLIVAR_FILLED = 2,     // a parameter that the member puts a number into
  FOLIVAR_LONG_CALL = 4,  // a member that may read or write files, and so may take its time
  FOLIVAR_TAG = 8         // a property that keeps any value for the host, FOLIVAR_HOST too
};

typedef struct folivar_parameter {
  const char* name;
  int32_t type;         // one of folivar_type
  int32_t traits;       // of folivar_trait
  const char* of;       // the enumeration's or the class's name, where the type has one; else null,
                        // as for an object of one of several classes
  folivar_value value;  // what it is when it is left out; FOLIVAR_MISSING for nothing else
} folivar_parameter;

typedef struct folivar_member {
  const char* name;
  const char* help;
  int32_t id;       // 0 for the default member of a class, -4 for the members of a collection in
                    // order (NewEnum), which languages have words of their own for
  int32_t actions;  // FOLIVAR_CALL, or FOLIVAR_GET and FOLIVAR_SET as far as they go
  int32_t traits;   // of folivar_trait
  int32_t type;     // what it gives or, a property that can be set alone, takes
  const char* of;   // as for a parameter
  const folivar_parameter* parameters;
  size_t parameter_count;
} folivar_member;

typedef struct folivar_class {
  const char* name;
  const char* help;
  bool is_creatable;
  const folivar_member* members;
  size_t member_count;
  const folivar_member* events;
  size_t event_count;
} folivar_class;

typedef struct folivar_constant {
  const char* name;
  int32_t value;
} folivar_constant;

typedef struct folivar_enumeration {
  const char* name;
  const char* help;
  const folivar_constant* constants;
  size_t constant_count;
} folivar_enumeration;

typedef struct folivar_library {
  const char* version;
  const folivar_class* classes;
  size_t class_count;
  const folivar_enumeration* enumerations;
  size_t enumeration_count;
} folivar_library;

// All that there is: classes, members and constants. It does not change.
FOLIVAR_PUBLIC const folivar_library* folivar_describe(void);

// One of folivar_describe's.
FOLIVAR_PUBLIC const folivar_class* folivar_class_of(const folivar_object* object);

// Values

static inline folivar_value folivar_missing(void) {
  folivar_value value;
  memset(&value, 0, sizeof value);
  return value;
}

static inline folivar_value folivar_null(void) {
  folivar_value value = folivar_missing();
  value.kind = FOLIVAR_NULL;
  return value;
}

static inline folivar_value folivar_flag(bool flag) {
  folivar_value value = folivar_missing();
  value.kind = FOLIVAR_FLAG;
  value.as.integer = flag ? 1 : 0;
  return value;
}

static inline folivar_value folivar_integer(int64_t integer) {
  folivar_value value = folivar_missing();
  value.kind = FOLIVAR_INTEGER;
  value.as.integer = integer;
  return value;
}

static inline folivar_value folivar_number(double number) {
  folivar_value value = folivar_missing();
  value.kind = FOLIVAR_NUMBER;
  value.as.number = number;
  return value;
}

// UTF-8 that ends in a 0, borrowed; a null pointer is the empty text.
static inline folivar_value folivar_text(const char* text) {
  folivar_value value = folivar_missing();
  value.kind = FOLIVAR_TEXT;
  value.as.text = text;
  value.with.length = text ? strlen(text) : 0;
  return value;
}

// Borrowed; a null pointer is no object.
static inline folivar_value folivar_of(void* object) {
  folivar_value value = folivar_null();
  if (object) {
    value.kind = FOLIVAR_OBJECT;
    value.as.object = FOLIVAR_CAST(folivar_object*, object);
  }
  return value;
}

// The object of a result; null for none.
static inline void* folivar_object_in(folivar_value value) {
  return value.kind == FOLIVAR_OBJECT ? value.as.object : NULL;
}

// An object of some class as one of any.
static inline folivar_object* folivar_any(void* object) {
  return FOLIVAR_CAST(folivar_object*, object);
}

#ifdef __cplusplus
}
#endif

// NOLINTEND

#include "folivar_members.h"

#endif
