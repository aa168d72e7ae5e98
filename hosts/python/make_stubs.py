#!/usr/bin/env python3
"""Writes folivar.pyi, which tells editors and type checkers what the module has.

make_stubs.py <com/Folivar.idl> <folivar.pyi>
"""

import pathlib
import sys

sys.path.insert(0, str(pathlib.Path(__file__).parents[1] / "table"))

import idl  # noqa: E402

HEAD = '''"""PDF documents: the object model of Folivar"""

from collections.abc import Callable, Iterator
from enum import IntEnum
from os import PathLike
from typing import Any, Final, Generic, NamedTuple, Protocol, TypeVar, final

__version__: str

_T = TypeVar("_T", contravariant=True)

class _SetOnly(Generic[_T]):
    def __set__(self, instance: object, newValue: _T, /) -> None: ...

class _Logger(Protocol):
    def warning(self, message: str, /) -> object: ...

def warnings(function: Callable[[str], object] | _Logger | None, /) -> None:
    """Sets where the warnings of documents that are made from now on go."""

class Error(Exception):
    """What a member raises that could not do what it was asked."""

    number: int
    member: str
'''

RESULTS = {"none": "None", "flag": "bool", "long": "int", "single": "float", "text": "str",
           "value": "Any", "texts": "list[str]", "object": "Any"}
GIVEN = {"flag": "bool", "long": "float", "single": "float", "text": "str | PathLike[str]",
         "value": "Any", "object": "Any"}


def main(source, output):
    pathlib.Path(output).write_text(stubs(idl.read(source)), encoding="utf-8")


def stubs(library):
    parts = [HEAD]
    for enumeration in library.enumerations:
        parts.append(enumeration_stub(enumeration))
    for made in library.classes:
        parts += [tuple_stub(made, member) for member in made.members if member.filled]
        parts.append(class_stub(made))
    return "\n".join(parts)


def enumeration_stub(enumeration):
    lines = [f"class {enumeration.name}(IntEnum):", f'    """{enumeration.help}"""', ""]
    lines += [f"    {name} = {value}" for name, value in enumeration.constants.items()]
    lines.append("")
    lines += [f"{name}: Final = {enumeration.name}.{name}" for name in enumeration.constants]
    return "\n".join(lines) + "\n"


def class_stub(made):
    lines = ["@final", f"class {made.name}:", f'    """{made.help}"""', ""]
    if made.is_creatable:
        lines.append(f"    def __new__(cls) -> {made.name}: ...")
    for member in made.members:
        if member.id != -4:
            lines += method(made, member) if is_method(member) else attribute(member)
    for event in made.events:
        lines += event_stub(event)
    return "\n".join(lines + collection(made)) + "\n"


def is_method(member):
    """Python has no properties with parameters."""
    return member.is_method or bool(member.parameters)


def method(made, member, name=None):
    result = tuple_name(made, member) if member.filled else result_of(member.type)
    taken = ["self"] + [parameter_of(parameter) for parameter in member.taken]
    return [f"    def {name or member.name}({', '.join(taken)}) -> {result}:", docstring(member)]


def attribute(member):
    given, result = given_for(member.type), result_of(member.type)
    if not member.can_be_read:
        return [f"    {member.name}: _SetOnly[{given}]"]
    if "setref" in member.functions and member.type.of:
        given = result = f"{member.type.of} | None"
    lines = ["    @property", f"    def {member.name}(self) -> {result}:", docstring(member)]
    if member.can_be_set:
        lines += [f"    @{member.name}.setter",
                  f"    def {member.name}(self, newValue: {given}) -> None: ..."]
    return lines


def event_stub(event):
    given = ", ".join(result_of(parameter.type) for parameter in event.parameters)
    return [f"    def {event.name}(self, handler: Callable[[{given}], object], /)"
            " -> Callable[[], None]:", docstring(event)]


def collection(made):
    """What the default member and its companions are to Python."""
    members = {member.name: member for member in made.members}
    item = next((member for member in made.members if member.id == 0), None)
    if item is None:
        return []
    lines = method(made, item, "__call__")
    if any(member.id == -4 for member in made.members) and not members["count"].parameters:
        of = result_of(item.type)
        lines += [f"    def __getitem__(self, key: str | float, /) -> {of}: ...",
                  "    def __len__(self) -> int: ...",
                  "    def __contains__(self, key: object, /) -> bool: ...",
                  f"    def __iter__(self) -> Iterator[{of}]: ..."]
    return lines


def tuple_stub(made, member):
    fields = [f"    {parameter.name}: float" for parameter in member.filled]
    return "\n".join([f"class {tuple_name(made, member)}(NamedTuple):"] + fields) + "\n"


def tuple_name(made, member):
    return f"_{made.name}_{member.name}"


def docstring(member):
    return f'        """{member.help}"""'


def result_of(type):
    if type.kind == "enumeration":
        return f"{type.of} | int"
    return type.of or RESULTS[type.kind]


def given_for(type):
    if type.kind == "enumeration":
        return f"{type.of} | float"
    return f"{type.of} | None" if type.of else GIVEN[type.kind]


def parameter_of(parameter):
    given = given_for(parameter.type)
    return f"{parameter.name}: {given}" + (" = ..." if parameter.is_optional else "")


if __name__ == "__main__":
    if len(sys.argv) != 3:
        raise SystemExit(__doc__)
    main(*sys.argv[1:])
