"""VBScript, in code page 1252, which has all that the documents show."""

import re

import recording

ENCODING = "cp1252"
PRELUDE = [
    "Sub Expect(found, expected)",
    '  If found <> expected Then WScript.Echo "found " & found & ", not " & expected',
    "End Sub",
]


def script(steps):
    lines = PRELUDE + [LINES[step.action](step) for step in steps]
    return "".join(line + "\r\n" for line in lines)


def create(step):
    return f'Set {step.object.name} = CreateObject("Folivar.{step.object.of}")'


def reach(step):
    return f"Set {step.value.name} = {expression(step)}"


def call(step):
    return f"{step.object.name}.{step.member.name} {listed(step.arguments)}".rstrip()


def assign(step):
    word = "Set " if step.value is None or isinstance(step.value, recording.Object) else ""
    return f"{word}{step.object.name}.{step.member.name} = {literal(step.value)}"


def get(step):
    if isinstance(step.value, list):  # an array of texts, into which VBScript cannot look
        return f"Expect VarType({expression(step)}), vbArray + vbString"
    return f"Expect {expression(step)}, {literal(step.value)}"


def release(step):
    return f"Set {step.object.name} = Nothing"


LINES = {"create": create, "reach": reach, "call": call, "set": assign, "get": get,
         "release": release}


def expression(step):
    arguments = listed(step.arguments)
    return f"{step.object.name}.{step.member.name}" + (f"({arguments})" if arguments else "")


def listed(arguments):
    return re.sub("(, )+$", "", ", ".join(literal(argument.value) for argument in arguments))


def literal(value):
    if value is recording.MISSING:
        return ""
    if value is None:
        return "Nothing"
    if isinstance(value, recording.Object):
        return value.name
    if isinstance(value, str):
        return text(value)
    if isinstance(value, bool):
        return str(value)
    if isinstance(value, recording.Single):
        return f"CSng({value.digits.removesuffix('.0')})"
    return f"CLng({value.value if isinstance(value, recording.Constant) else value:d})"


def text(value):
    """"one ""two\""" & Chr(10) & "three\""""
    return '"' + re.sub(r'["\0-\x1f]', lambda found: '""' if found[0] == '"' else
                        f'" & Chr({ord(found[0])}) & "', value) + '"'
