"""C99, over the typed functions of folivar.h."""

import recording

ENCODING = "ascii"
PRELUDE = '''\
#include <folivar.h>
#include <stdio.h>
#include <stdlib.h>

#define CALL(call)                                                            \\
  do {                                                                        \\
    if ((call) != 0) Fail(__LINE__, folivar_last_error()->text);              \\
  } while (0)

#define EXPECT(holds)                                                         \\
  do {                                                                        \\
    if (!(holds)) Fail(__LINE__, "not " #holds);                              \\
  } while (0)

static void Fail(int line, const char* text) {
  fprintf(stderr, "line %d: %s\\n", line, text);
  exit(1);
}

static inline bool IsText(folivar_value found, const char* expected) {
  return found.kind == FOLIVAR_TEXT && found.with.length == strlen(expected) &&
         memcmp(found.as.text, expected, found.with.length) == 0;
}

'''
# A function of a whole recording would keep the compiler busy for long.
LONGEST_FUNCTION = 500

RESULTS = {"flag": "bool", "long": "int32_t", "single": "float"}


def script(steps):
    lines = [LINES[step.action](step) for step in steps]
    parts = [lines[start:start + LONGEST_FUNCTION]
             for start in range(0, len(lines), LONGEST_FUNCTION)]
    objects = sorted({(step.object.of, variable(step.object)) for step in steps} |
                     {(step.value.of, variable(step.value)) for step in steps
                      if step.action == "reach"})
    text = PRELUDE
    text += "".join(f"static folivar_{of}* {name};\n" for of, name in objects)
    for number, part in enumerate(parts):
        text += f"\nstatic void Part{number}(void) {{\n" + "".join(
            f"  {line}\n" for line in part) + "}\n"
    calls = "".join(f"  Part{number}();\n" for number in range(len(parts)))
    return text + f'\nint main(void) {{\n{calls}  puts("DONE");\n  return 0;\n}}\n'


def create(step):
    return f"CALL(folivar_{step.object.of}_new(NULL, &{variable(step.object)}));"


def reach(step):
    return f"CALL({expression(step, '&' + variable(step.value))});"


def call(step):
    return f"CALL({expression(step)});"


def assign(step):
    name = step.member.name
    return (f"CALL(folivar_{step.object.of}_Set{name[0].upper()}{name[1:]}"
            f"({variable(step.object)}, {passed(step.value, step.member.type)}));")


def get(step):
    kind = step.member.type.kind
    found = f"CALL({expression(step, '&found')});"
    if kind in RESULTS:
        return f"{{ {RESULTS[kind]} found; {found} EXPECT(found == {literal(step.value)}); }}"
    return f"{{ folivar_value found; {found} {expectation(step)} folivar_clear(&found); }}"


def expectation(step):
    if step.member.type.kind == "text":
        return f"EXPECT(IsText(found, {literal(step.value)}));"
    checks = [f"EXPECT(IsText(found.as.values[{place}], {literal(text)}));"
              for place, text in enumerate(step.value)]
    return " ".join([f"EXPECT(found.with.length == {len(checks)});"] + checks)


def release(step):
    return f"folivar_release({variable(step.object)});"


LINES = {"create": create, "reach": reach, "call": call, "set": assign, "get": get,
         "release": release}


def expression(step, result=None):
    given = [variable(step.object)]
    given += [passed(argument.value, argument.parameter.type) for argument in step.arguments]
    given += [result] if result else []
    return f"folivar_{step.object.of}_{step.member.name}({', '.join(given)})"


def variable(made):
    """Names are used again for objects of other classes, variables are not."""
    return f"{made.of}_{made.name}"


def passed(value, type):
    return wrapped(value) if type.kind == "value" else literal(value)


def wrapped(value):
    if value is recording.MISSING:
        return "folivar_missing()"
    if isinstance(value, str):
        return f"folivar_text({literal(value)})"
    if isinstance(value, bool):
        return f"folivar_flag({literal(value)})"
    if isinstance(value, recording.Single):
        return f"folivar_number({literal(value)})"
    return f"folivar_integer({literal(value)})"


def literal(value):
    if value is None:
        return "NULL"
    if isinstance(value, recording.Object):
        return variable(value)
    if isinstance(value, recording.Constant):
        return f"folivar_{value.name}"
    if isinstance(value, str):
        return '"' + "".join(map(character, value.encode())) + '"'
    if isinstance(value, bool):
        return str(value).lower()
    return f"{value.digits}F" if isinstance(value, recording.Single) else str(value)


def character(byte):
    """In three octal digits, which those that follow are no part of, where it is not plain."""
    return chr(byte) if 0x20 <= byte < 0x7F and chr(byte) not in '"\\?' else f"\\{byte:03o}"
