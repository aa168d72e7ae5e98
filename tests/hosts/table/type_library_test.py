"""Compares what is read of the IDL with the type library that widl makes of it.

The latter is known from its dump, tests/automation/type_library.expected. The places of functions
in the tables of methods, which languages do without, are left out.
"""

import pathlib
import re
import sys
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[3]
sys.path.insert(0, str(ROOT / "hosts" / "table"))

import idl  # noqa: E402

WORDS = {"get": "Property Get", "set": "Property Let", "setref": "Property Set"}
TYPES = {"flag": "Boolean", "long": "Long", "single": "Single", "text": "String",
         "value": "Variant", "texts": "String()", "objects": "Unknown"}


def dumped():
    """The parts of the dump: the functions of an interface are sorted by their identifiers."""
    text = (ROOT / "tests" / "automation" / "type_library.expected").read_text(encoding="ascii")
    parts = {}
    for part in text.split("\n\n"):
        head, *lines = part.rstrip("\n").split("\n")
        if head.startswith(("interface", "events")):
            functions = [re.fullmatch(r" *(?:\d+|-) +(-?\d+) (.*)", line).groups()
                         for line in lines]
            lines = [f"{id} {function}" for id, function in by_identifier(functions)]
        parts[head] = lines
    return parts


def described(library):
    """The same of what was read."""
    constants = {name: value for enumeration in library.enumerations
                 for name, value in enumeration.constants.items()}
    parts = {f"library {library.name} {library.version}": []}
    for enumeration in library.enumerations:
        parts[f"enumeration {enumeration.name}"] = [
            f"  {name} = {value}" for name, value in enumeration.constants.items()]
    for made in library.classes:
        parts[f"interface _{made.name} dual nonextensible"] = functions(made.members, constants)
        if made.events:
            parts[f"events __{made.name} hidden"] = functions(made.events, constants)
        parts[f"class {made.name}" + (" creatable" if made.is_creatable else "")] = [
            f"  _{made.name} default"] + ([f"  __{made.name} default source"] if made.events
                                          else [])
    return parts


def by_identifier(functions):
    return sorted(functions, key=lambda function: int(function[0]))


def functions(members, constants):
    found = [(function.id, declaration(function, constants)) for member in members
             for function in member.functions.values()]
    return [f"{id} {text}" for id, text in by_identifier(found)]


def declaration(function, constants):
    listed = [parameter(each, constants) for each in function.parameters]
    given = "" if function.type.kind == "none" else f" As {type_name(function.type)}"
    if function.action in ("set", "setref"):
        listed.append(f"value{given}")
        given = ""
    word = WORDS.get(function.action, "Function" if given else "Sub")
    hidden = " restricted hidden" if function.is_restricted else ""
    return f"{word} {function.name}({', '.join(listed)}){given}{hidden}"


def parameter(described, constants):
    passed = "Optional " if described.is_optional else "ByRef " if described.is_filled else ""
    default = "" if described.default is None else f" = {literal(described, constants)}"
    return f"{passed}{described.name} As {type_name(described.type)}{default}"


def type_name(type):
    if type.kind == "object":
        return f"_{type.of}" if type.of else "Object"
    return type.of or TYPES[type.kind]


def literal(parameter, constants):
    default = constants.get(parameter.default, parameter.default)
    if parameter.type.kind == "text":
        return f'"{default}"'
    return f"{default}!" if parameter.type.kind == "single" else str(default)


class TypeLibraryTest(unittest.TestCase):
    maxDiff = None

    def test_table_is_the_type_library(self):
        self.assertEqual(described(idl.read(ROOT / "com" / "Folivar.idl")), dumped())


if __name__ == "__main__":
    unittest.main()
