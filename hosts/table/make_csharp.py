#!/usr/bin/env python3
"""Makes the declarations for C# out of the IDL.

    make_csharp.py IDL OUTPUT
"""

import pathlib
import sys
import textwrap

import idl

WIDTH = 100
# A blank at which no line ends.
TIE = "\0"
TYPES = {"none": "void", "flag": "bool", "long": "int", "single": "float", "text": "string",
         "value": "object", "texts": "string[]"}

START = """\
// The automation interface for C#, so that no type library has to be imported: members are called by
// their identifiers. Made by hosts/table/make_csharp.py out of com/Folivar.idl.

using System.Runtime.InteropServices;

namespace Folivar
{
"""


def main(source, output):
    library = idl.read(source)
    blocks = [enumeration(one) for one in library.enumerations]
    blocks += [creatable(one) for one in library.classes if one.is_creatable]
    blocks += [events(one) for one in library.classes if one.events]
    blocks += [interface(one) for one in library.classes]
    body = "\n\n".join(textwrap.indent(block, "    ") for block in blocks)
    pathlib.Path(output).write_text(f"{START}{body}\n}}\n")


def summary(help):
    return textwrap.fill(f"<summary>{help}.</summary>", WIDTH - 8, initial_indent="/// ",
                         subsequent_indent="/// ").replace("&", "&amp;") + "\n"


def block(head, lines):
    return head + "\n{\n" + "".join(textwrap.indent(line, "    ") + "\n" for line in lines) + "}"


def enumeration(one):
    return summary(one.help) + block(
        f"public enum {one.name}",
        [f"{name} = {value}," for name, value in one.constants.items()])


def creatable(made):
    return summary(made.help) + block(
        f'[ComImport, Guid("{made.uuid}")]\npublic class {made.name}Class', [])


def events(made):
    return summary(f"What listens to a {made.name}") + block(
        f'[ComVisible(true), Guid("{made.events_uuid}")]\n'
        "[InterfaceType(ComInterfaceType.InterfaceIsIDispatch)]\n"
        f"public interface {made.name}Events",
        [member_lines(member) for member in made.events])


def interface(made):
    return summary(made.help) + block(
        f'[ComImport, Guid("{made.interface_uuid}")]\n'
        "[InterfaceType(ComInterfaceType.InterfaceIsIDispatch)]\n"
        f"public interface {made.name}",
        [member_lines(member) for member in made.members])


def member_lines(member):
    lines = textwrap.fill(f"[DispId({member.id})] {declaration(member)}", WIDTH - 8,
                          subsequent_indent="    ", break_long_words=False)
    return summary(member.help) + lines.replace(TIE, " ")


def declaration(member):
    if member.type.kind == "objects":
        return "System.Collections.IEnumerator GetEnumerator();"
    result = type_name(member.type)
    parameters = ", ".join(parameter(member.parameters, place).replace(" ", TIE)
                           for place in range(len(member.parameters)))
    if member.id == 0:  # the default member
        return f"{result} this[{parameters}] {{ get; }}"
    if member.is_method or member.parameters:
        return f"{result} {member.name}({parameters});"
    sides = "get; " * member.can_be_read + "set; " * member.can_be_set
    return f"{result} {member.name} {{ {sides}}}"


def parameter(parameters, place):
    one = parameters[place]
    name = one.name[0].lower() + one.name[1:]
    declared = f"{'ref ' if one.is_filled else ''}{type_name(one.type)} {name}"
    if one.default is None:
        return f"[Optional] {declared}" if one.is_optional else declared
    # C# has no default in front of a parameter without one.
    if all(later.default is not None for later in parameters[place:]):
        return f"{declared} = {value(one)}"
    return f"[Optional, DefaultParameterValue({value(one)})] {declared}"


def value(one):
    if one.type.kind == "text":
        return f'"{one.default}"'
    if one.type.kind == "flag":
        return str(one.default).lower()
    return f"{one.type.of}.{one.default}" if one.type.kind == "enumeration" else str(one.default)


def type_name(type):
    return TYPES.get(type.kind) or type.of or "object"


if __name__ == "__main__":
    if len(sys.argv) != 3:
        raise SystemExit(__doc__)
    main(*sys.argv[1:])
