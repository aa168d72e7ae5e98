"""JavaScript for Node; the argument of the script is the folder of the module."""

import json

import recording

ENCODING = "ascii"
PRELUDE = '''\
"use strict";
const { deepStrictEqual: expect } = require("assert");
const folivar = require(process.argv[2]);
'''


def script(steps):
    names = sorted({(step.value if step.action == "reach" else step.object).name
                    for step in steps})
    lines = [f"let {', '.join(names)};"] + [LINES[step.action](step) + ";" for step in steps]
    return PRELUDE + "".join(line + "\n" for line in lines) + 'console.log("DONE");\n'


def create(step):
    return f"{step.object.name} = new folivar.{step.object.of}()"


def reach(step):
    return f"{step.value.name} = {expression(step)}"


def assign(step):
    return f"{step.object.name}.{step.member.name} = {literal(step.value)}"


def get(step):
    return f"expect({expression(step)}, {literal(step.value)})"


def release(step):
    return f"{step.object.name} = undefined"


def expression(step):
    """Names after the first argument that is left out."""
    given, named = [], []
    listed, prefix = given, ""
    for argument in step.arguments:
        if argument.is_left_out:
            listed, prefix = named, "{}: "
        else:
            listed.append(prefix.format(argument.parameter.name) + literal(argument.value))
    if named:
        given.append(f"{{ {', '.join(named)} }}")
    called = f"({', '.join(given)})" if step.member.is_method or step.arguments else ""
    return f"{step.object.name}.{step.member.name}{called}"


LINES = {"create": create, "reach": reach, "call": expression, "set": assign, "get": get,
         "release": release}


def literal(value):
    if isinstance(value, recording.Object):
        return value.name
    if isinstance(value, recording.Constant):
        return f"folivar.{value.name}"
    return float.__repr__(value) if isinstance(value, recording.Single) else json.dumps(value)
