"""C99, over the typed functions of folivar.h."""

import recording

ENCODING = "ascii"
PRELUDE = '''\
#include <folivar.h>
#include <stdio.h>
#include <stdlib.h>

#define CALL(call) RequireCall(__LINE__, call)
#define EXPECT(holds) RequireValue(__LINE__, holds)
// Forgotten too: what is left of it is a leak that can be found.
#define RELEASE(object) (folivar_release(object), (object) = NULL)

static void RequireCall(int line, int32_t error) {
  if (error == 0) return;
  fprintf(stderr, "line %d: %s\\n", line, folivar_last_error()->text);
  exit(1);
}

static inline void RequireValue(int line, bool holds) {
  if (holds) return;
  fprintf(stderr, "line %d: another value\\n", line);
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
    text = PRELUDE + "".join(f"static {type} {name};\n" for type, name in variables(steps))
    for number, part in enumerate(parts):
        text += f"\nstatic void Part{number}(void) {{\n" + "".join(
            f"  {line}\n" for line in part) + "}\n"
    calls = "".join(f"  Part{number}();\n" for number in range(len(parts)))
    return text + f'\nint main(void) {{\n{calls}  puts("DONE");\n  return 0;\n}}\n'


def variables(steps):
    """What is found and what is reached, each with its type."""
    found = {(RESULTS.get(step.member.type.kind, "folivar_value"), result(step))
             for step in steps if step.action == "get"}
    objects = {step.value if step.action == "reach" else step.object for step in steps}
    return sorted(found | {(f"folivar_{made.of}*", variable(made)) for made in objects})


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
    lines = [f"CALL({expression(step, '&' + result(step))});"]
    if step.member.type.kind in RESULTS:
        return "\n  ".join(lines + [f"EXPECT({result(step)} == {literal(step.value)});"])
    return "\n  ".join(lines + expectations(step) + [f"folivar_clear(&{result(step)});"])


def expectations(step):
    if step.member.type.kind == "text":
        return [f"EXPECT(IsText({result(step)}, {literal(step.value)}));"]
    count = f"EXPECT({result(step)}.with.length == {len(step.value)});"
    return [count] + [f"EXPECT(IsText({result(step)}.as.values[{place}], {literal(text)}));"
                      for place, text in enumerate(step.value)]


def release(step):
    return f"RELEASE({variable(step.object)});"


LINES = {"create": create, "reach": reach, "call": call, "set": assign, "get": get,
         "release": release}


def expression(step, *target):
    given = [variable(step.object)]
    given += [passed(argument.value, argument.parameter.type) for argument in step.arguments]
    given += target
    return f"folivar_{step.object.of}_{step.member.name}({', '.join(given)})"


def variable(made):
    """Names are used again for objects of other classes, variables are not."""
    return f"{made.of}_{made.name}"


def result(step):
    """The variable that gets what a member gives."""
    return f"found_{step.member.type.kind}"


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
