#!/usr/bin/env python3
"""Makes the C library's part of the table out of the IDL.

    make_c.py IDL CORE_FOLDER OUTPUT_FOLDER

folivar_members.h has a typed inline function for each member; Table.cpp has what the library knows
of each, and the line that names the core's member.
"""

import pathlib
import sys
import textwrap

import core
import idl

ACTIONS = {"call": "FOLIVAR_CALL", "get": "FOLIVAR_GET", "set": "FOLIVAR_SET",
           "setref": "FOLIVAR_SET"}

# In C, of an argument and of a result; of the others a folivar_value.
C_TYPES = {"flag": "bool", "long": "int32_t", "single": "float"}
# What makes a folivar_value of an argument.
WRAPPED = {"flag": "folivar_flag({})", "long": "folivar_integer({})",
           "enumeration": "folivar_integer({})", "single": "folivar_number({})",
           "text": "folivar_text({})", "object": "folivar_of({})", "value": "{}"}
# The part of a folivar_value that a result is in.
HELD = {"flag": "as.integer != 0", "long": "as.integer", "enumeration": "as.integer",
        "single": "as.number", "object": "as.object"}


def main(source, core_folder, output):
    library = idl.read(source)
    output = pathlib.Path(output)
    (output / "folivar_members.h").write_text(members_header(library))
    (output / "Table.cpp").write_text(table_source(library, pathlib.Path(core_folder)))


def literal(text):
    return '"' + text.replace("\\", "\\\\").replace('"', '\\"') + '"'


# The header

def members_header(library):
    lines = ["// Made from the description of the interface; included by folivar.h.",
             "", "#ifndef FOLIVAR_MEMBERS_H", "#define FOLIVAR_MEMBERS_H", "",
             "// NOLINTBEGIN: this is C.", "",
             "#ifdef __cplusplus", 'extern "C" {', "#endif"]
    for enumeration in library.enumerations:
        constants = [f"  folivar_{name} = {value}" for name, value in enumeration.constants.items()]
        lines += ["", f"// {enumeration.help}", f"typedef enum folivar_{enumeration.name} {{",
                  ",\n".join(constants), f"}} folivar_{enumeration.name};"]
    for made in library.classes:
        lines += ["", f"// {made.help}",
                  f"typedef struct folivar_{made.name} folivar_{made.name};"]
    for made in library.classes:
        if made.is_creatable:
            lines += creation(made)
        for member in made.members:
            for function in sides(member):
                lines += inline_function(made, function)
        for event in made.events:
            lines += ["", f"// {event.help}; for folivar_subscribe",
                      f"enum {{ folivar_{made.name}_{event.name} = {event.id} }};"]
    lines += ["", "#ifdef __cplusplus", "}", "#endif", "", "// NOLINTEND", "", "#endif", ""]
    return "\n".join(lines)


def sides(member):
    """A property is set in one way."""
    return [function for action, function in member.functions.items()
            if action != "setref" or "set" not in member.functions]


def creation(made):
    return ["", f"// {made.help}. Its warnings go to `warnings`, as in folivar_create.",
            *opening(f"static inline int32_t folivar_{made.name}_new",
                     ["const folivar_callback* warnings", f"folivar_{made.name}** result"]),
            "  folivar_object* made = NULL;",
            f'  const int32_t error = folivar_create("{made.name}", warnings, &made);',
            f"  *result = FOLIVAR_CAST(folivar_{made.name}*, FOLIVAR_CAST(void*, made));",
            "  return error;", "}"]


def opening(start, parameters):
    """The first lines of a function."""
    return textwrap.wrap(f"{start}({', '.join(parameters)}) {{", 100, subsequent_indent="    ",
                         break_long_words=False)


def inline_function(made, function):
    parameters = list(function.parameters)
    name = function.name
    result = function.type
    if function.action in ("set", "setref"):
        name = f"Set{name[0].upper()}{name[1:]}"
        parameters.append(idl.Parameter("newValue", function.type))
        result = idl.Type("none")
    declared = [f"folivar_{made.name}* self"]
    declared += [f"{c_type(parameter.type)}{'*' if parameter.is_filled else ''} {parameter.name}"
                 for parameter in parameters]
    if result.kind != "none":
        declared.append(f"{c_result(result)}* result")
    lines = ["", f"// {function.help}",
             *opening(f"static inline int32_t folivar_{made.name}_{name}", declared)]
    lines += body(function, parameters, result)
    return lines + ["}"]


def body(function, parameters, result):
    lines = []
    if parameters:
        lines.append(f"  folivar_value arguments[{len(parameters)}];")
    is_direct = result.kind == "none" or c_result(result) == "folivar_value"
    if not is_direct:
        lines.append("  folivar_value given;")
    filled = [(place, parameter) for place, parameter in enumerate(parameters)
              if parameter.is_filled]
    if not is_direct or filled:
        lines.append("  int32_t error;")
    for place, parameter in enumerate(parameters):
        wrapped = ("folivar_missing()" if parameter.is_filled else
                   WRAPPED[parameter.type.kind].format(parameter.name))
        lines.append(f"  arguments[{place}] = {wrapped};")
    target = "NULL" if result.kind == "none" else "result" if is_direct else "&given"
    call = (f"folivar_invoke(folivar_any(self), {function.id}, {ACTIONS[function.action]}, "
            f"{'arguments' if parameters else 'NULL'}, {len(parameters)}, {target})")
    if is_direct and not filled:
        return lines + [f"  return {call};"]
    lines.append(f"  error = {call};")
    for place, parameter in filled:
        lines.append(f"  if (error == 0) *{parameter.name} = "
                     f"FOLIVAR_CAST({c_type(parameter.type)}, arguments[{place}].as.number);")
    if result.kind == "object":
        lines.append(f"  *result = FOLIVAR_CAST({c_result(result)}, folivar_object_in(given));")
    elif not is_direct:
        held = f"given.{HELD[result.kind]}"
        lines.append(f"  if (error == 0) *result = FOLIVAR_CAST({c_result(result)}, {held});")
    return lines + ["  return error;"]


def c_type(type):
    if type.kind == "object":
        return f"folivar_{type.of or 'object'}*"
    if type.kind == "enumeration":
        return f"folivar_{type.of}"
    if type.kind == "text":
        return "const char*"
    return C_TYPES.get(type.kind, "folivar_value")


def c_result(type):
    return "folivar_value" if type.kind == "text" else c_type(type)


# The source

def table_source(library, core_folder):
    constants = {name: value for enumeration in library.enumerations
                 for name, value in enumeration.constants.items()}
    lines = ["// Made from the description of the interface.", ""]
    lines += sorted(f'#include "{core.header_of_core(made.name, core_folder)}"'
                    for made in library.classes)
    lines += ['#include "hosts/c/Run.h"', "", "namespace folivar::hosts {", "namespace {"]
    for enumeration in library.enumerations:
        rows = [f"    {{{literal(name)}, {value}}}," for name, value in
                enumeration.constants.items()]
        lines += ["", f"constexpr folivar_constant k{enumeration.name}[] = {{", *rows, "};"]
    rows = [f"    {{{literal(enumeration.name)}, {literal(enumeration.help)}, "
            f"k{enumeration.name}, {len(enumeration.constants)}}}," for enumeration in
            library.enumerations]
    lines += ["", "constexpr folivar_enumeration kEnumerations[] = {", *rows, "};"]
    for made in library.classes:
        lines += class_tables(made, constants)
    lines += ["", "constexpr folivar_class kClasses[] = {"]
    for made in library.classes:
        events = (f"k{made.name}Events, {len(made.events)}" if made.events else "nullptr, 0")
        lines.append(f"    {{{literal(made.name)}, {literal(made.help)}, "
                     f"{str(made.is_creatable).lower()}, k{made.name}Members, "
                     f"{len(made.members)}, {events}}},")
    lines += ["};", "", "}  // namespace"]
    for place, made in enumerate(library.classes):
        subscribe = f"k{made.name}Subscribe" if made.events else "{}"
        lines += ["", "template <>", f"const Class& ClassOf<{made.name}>() {{",
                  f"  static constexpr Class kClass{{&kClasses[{place}], k{made.name}Entries, "
                  f"{subscribe}, &OwnerOf<{made.name}>}};", "  return kClass;", "}"]
    lines += ["", "}  // namespace folivar::hosts", "",
              "const folivar_library* folivar_describe(void) {",
              "  using namespace folivar::hosts;",
              "  static constexpr folivar_library kLibrary{FOLIVAR_VERSION, kClasses, "
              f"{len(library.classes)}, kEnumerations, {len(library.enumerations)}}};",
              "  return &kLibrary;", "}", ""]
    return "\n".join(lines)


def class_tables(made, constants):
    lines = ["", f"// {made.name}"]
    members = [(made.members, "Members")] + ([(made.events, "Events")] if made.events else [])
    for listed, _ in members:
        for member in listed:
            rows = [parameter_row(parameter, constants) for parameter in member.parameters]
            if rows:
                lines += ["", f"constexpr folivar_parameter k{made.name}{member.name}[] = {{",
                          *rows, "};"]
    for listed, kind in members:
        rows = [member_row(made, member) for member in listed]
        lines += ["", f"constexpr folivar_member k{made.name}{kind}[] = {{", *rows, "};"]
    lines += ["", f"constexpr Function k{made.name}Functions[] = {{"]
    for member in made.members:
        for function in sides(member):
            lines.append(f"    {{{function.id}, {ACTIONS[function.action]}, &RunMember<{made.name},"
                         f" &{core.member_of_core(made, function)}>}},")
    reach = max(member.id for member in made.members) + 5
    lines += ["};", "", f"constexpr auto k{made.name}Entries =",
              f"    EntriesOf<{reach}>(k{made.name}Members, k{made.name}Functions);"]
    if made.events:
        rows = [f"    &SubscribeTo<{made.name}, &{made.name}::{event.name}>,"
                for event in made.events]
        lines += ["", f"constexpr Subscribe k{made.name}Subscribe[] = {{", *rows, "};"]
    return lines


def of(type):
    return literal(type.of) if type.of else "nullptr"


def parameter_row(parameter, constants):
    traits = [name for name, is_so in (("FOLIVAR_OPTIONAL", parameter.is_optional),
                                       ("FOLIVAR_FILLED", parameter.is_filled)) if is_so]
    return (f"    {{{literal(parameter.name)}, FOLIVAR_TYPE_{parameter.type.kind.upper()}, "
            f"{' | '.join(traits) or '0'}, {of(parameter.type)}, "
            f"{default_value(parameter, constants)}}},")


def default_value(parameter, constants):
    default = constants.get(parameter.default, parameter.default)
    if default is None:
        return "{}"
    if parameter.type.kind == "text":
        return (f"{{.kind = FOLIVAR_TEXT, .as = {{.text = {literal(default)}}}, "
                f".with = {{.length = {len(default.encode())}}}}}")
    if parameter.type.kind == "single":
        return f"{{.kind = FOLIVAR_NUMBER, .as = {{.number = {default}}}, .with = {{}}}}"
    kind = "FLAG" if parameter.type.kind == "flag" else "INTEGER"
    return f"{{.kind = FOLIVAR_{kind}, .as = {{.integer = {int(default)}}}, .with = {{}}}}"


def member_row(made, member):
    actions = sorted({ACTIONS[action] for action in member.functions})
    traits = [name for name, is_so in (
        ("FOLIVAR_LONG_CALL", (made.name, member.name) in core.LONG_CALLS),
        ("FOLIVAR_TAG", member.is_tag)) if is_so]
    parameters = (f"k{made.name}{member.name}, {len(member.parameters)}" if member.parameters
                  else "nullptr, 0")
    return (f"    {{{literal(member.name)}, {literal(member.help)}, {member.id}, "
            f"{' | '.join(actions)}, {' | '.join(traits) or '0'}, FOLIVAR_TYPE_{member.type.kind.upper()}, "
            f"{of(member.type)}, {parameters}}},")


if __name__ == "__main__":
    if len(sys.argv) != 4:
        raise SystemExit(__doc__)
    main(*sys.argv[1:])
