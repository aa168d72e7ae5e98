"""Writes what the package for Node has of the table: index.d.ts, what TypeScript and editors know of
it, and index.mjs, in which `import` finds its names before it runs.

    make_package.py IDL OUTPUT_FOLDER
"""

import pathlib
import sys

sys.path.insert(0, str(pathlib.Path(__file__).parent.parent / "table"))

import idl  # noqa: E402

HEAD = """\
// Types of the package folivar; made from the description of the object model.

/** What is wrong with a call. */
export class Error extends globalThis.Error {
  constructor(number: number, member: string, text: string);
  /** What kind of error it is: 9 for a position that is not there, say. */
  readonly number: number;
  /** The member that was called: "PDFPage.DrawText". */
  readonly member: string;
}

/** The version of the library. */
export const version: string;

/** Where a warning goes: a function, or an object with a method warn, as console is one. */
export type Warnings = ((text: string) => void) | { warn(text: string): void };

/**
 * Sets where the warnings of documents go that are made from now on; for null to where the
 * environment variable FOLIVAR_WARNINGS says.
 */
export function warnings(listener: Warnings | null): void;
"""

# A class whose objects a document makes.
CLASS = """
interface Class<T> extends Function {
  readonly prototype: T;
}
"""

TYPES = {
    "none": "void",
    "flag": "boolean",
    "long": "number",
    "single": "number",
    "text": "string",
    "value": "any",
    "texts": "string[]",
}
TAKEN = {"flag": "boolean | number", "value": "number | string"}

# The ids of members that have no name in JavaScript, or a second one.
DEFAULT, MEMBERS = 0, -4


def main(source, output):
    library = idl.read(source)
    output = pathlib.Path(output)
    (output / "index.d.ts").write_text(typings(library), encoding="utf-8")
    (output / "index.mjs").write_text(names_for_import(library), encoding="utf-8")


def names_for_import(library):
    names = ["Error", "version", "warnings", *(made.name for made in library.classes)]
    for enumeration in library.enumerations:
        names += [enumeration.name, *enumeration.constants]
    return "\n".join(["import folivar from './index.js';", "", "export default folivar;",
                      "export const {", *(f"  {name}," for name in names), "} = folivar;", ""])


def typings(library):
    lines = [HEAD]
    for enumeration in library.enumerations:
        lines += constants_of(enumeration)
    lines.append(CLASS)
    for made in library.classes:
        lines += class_of(made)
    return "\n".join(lines)


def comment(text, indent=""):
    return f"{indent}/** {text}. */"


def constants_of(enumeration):
    name = enumeration.name
    constants = [f"{constant}: {value};" for constant, value in enumeration.constants.items()]
    return [comment(enumeration.help), f"export type {name} = number;",
            f"export const {name}: {{ {' '.join('readonly ' + each for each in constants)} }};",
            *(f"export const {each}" for each in constants), ""]


def class_of(made):
    """An interface for the objects, and what stands in the module."""
    body = []
    for member in made.members:
        body += member_of(made, member)
    for event in made.events:
        parameters = ", ".join(f"{each.name}: {type_of(each.type)}" for each in event.parameters)
        body += [comment(f"{event.help}. The function that it returns unsubscribes", "  "),
                 f"  {event.name}(handler: ({parameters}) => void): () => void;"]
    creation = f"{{ new (): {made.name}; (): {made.name} }} & " if made.is_creatable else ""
    return [comment(made.help), f"export interface {made.name} {{", *body, "}",
            f"export const {made.name}: {creation}Class<{made.name}>;", ""]


def member_of(made, member):
    help = comment(member.help, "  ")
    if member.id == MEMBERS:
        item = next(other for other in made.members if other.id == DEFAULT)
        of = result_of(item)
        return [help, f"  [Symbol.iterator](): IterableIterator<{of}>;",
                f"  readonly [position: number]: {of};"]
    if member.is_method or member.parameters:
        lines = [help] + [f"  {member.name}{form}" for form in forms_of(member)]
        # A collection is called for its members.
        return [help, f"  {forms_of(member)[0]}", *lines] if member.id == DEFAULT else lines
    return [help] + [f"  {line}" for line in property_of(member)]


def property_of(member):
    got, set_to = result_of(member), taken_by(member.type)
    if member.type.kind == "value":
        set_to = got
    if not member.can_be_set:
        return [f"readonly {member.name}: {got};"]
    if not member.can_be_read:
        return [f"set {member.name}(value: {set_to});"]
    if member.type.kind == "object":  # what can be set can be none
        got = set_to
    if got == set_to:
        return [f"{member.name}: {got};"]
    return [f"get {member.name}(): {got};", f"set {member.name}(value: {set_to});"]


def forms_of(member):
    """Arguments by their positions; then with one position after the other, the rest by names."""
    result = result_of(member)
    forms = [f"({list_of(member.taken)}): {result};"]
    for count in range(len(member.taken)):
        names = "; ".join(parameter_of(parameter) for parameter in member.taken[count:])
        places = [f"{parameter.name}: {taken_by(parameter.type)}{undefined_of(parameter)}"
                  for parameter in member.taken[:count]]
        forms.append(f"({', '.join([*places, f'names: {{ {names} }}'])}): {result};")
    return forms


def result_of(member):
    if member.filled:
        return "{ " + "; ".join(f"{each.name}: {type_of(each.type)}"
                                for each in member.filled) + " }"
    return type_of(member.type)


def list_of(parameters):
    return ", ".join(parameter_of(parameter) for parameter in parameters)


def parameter_of(parameter):
    return f"{parameter.name}{'?' if parameter.is_optional else ''}: {taken_by(parameter.type)}"


def undefined_of(parameter):
    return " | undefined" if parameter.is_optional else ""


def type_of(type):
    """What a member gives."""
    return TYPES.get(type.kind) or type.of or "any"


def taken_by(type):
    """What a parameter takes, or a property that is set."""
    if type.kind == "object":
        return type_of(type) + " | null"
    return TAKEN.get(type.kind) or type_of(type)


if __name__ == "__main__":
    main(*sys.argv[1:])
