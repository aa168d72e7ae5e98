"""Python, over the module folivar."""

import recording

ENCODING = "ascii"
PRELUDE = '''\
import folivar


def expect(found, expected):
    if found != expected or type(found) is not type(expected):
        raise AssertionError(f"found {found!r}, not {expected!r}")


'''


def script(steps):
    lines = [LINES[step.action](step) for step in steps]
    return PRELUDE + "".join(line + "\n" for line in lines) + 'print("DONE")\n'


def create(step):
    return f"{step.object.name} = folivar.{step.object.of}()"


def reach(step):
    return f"{step.value.name} = {expression(step)}"


def assign(step):
    return f"{step.object.name}.{step.member.name} = {literal(step.value)}"


def get(step):
    return f"expect({expression(step)}, {literal(step.value)})"


def release(step):
    return f"del {step.object.name}"


def expression(step):
    """Keywords after the first argument that is left out."""
    given = []
    prefix = ""
    for argument in step.arguments:
        if argument.is_left_out:
            prefix = "{}="
        else:
            given.append(prefix.format(argument.parameter.name) + literal(argument.value))
    called = f"({', '.join(given)})" if step.member.is_method or step.arguments else ""
    return f"{step.object.name}.{step.member.name}{called}"


LINES = {"create": create, "reach": reach, "call": expression, "set": assign, "get": get,
         "release": release}


def literal(value):
    if isinstance(value, recording.Object):
        return value.name
    if isinstance(value, recording.Constant):
        return f"folivar.{value.name}"
    return float.__repr__(value) if isinstance(value, recording.Single) else ascii(value)
