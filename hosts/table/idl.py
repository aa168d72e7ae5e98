"""Reads the description of the automation interface, com/Folivar.idl, into a Library.

It understands as much of the language as that file uses, and refuses what it does not: a member
that it cannot read is an error, never a member that is missing.
"""

import dataclasses
import re

# What a type of the interface is called here; any other name is an enumeration's or an interface's.
SCALARS = {
    "VARIANT_BOOL": "flag",
    "long": "long",
    "float": "single",
    "BSTR": "text",
    "VARIANT": "value",
    "SAFEARRAY(BSTR)": "texts",
    "IUnknown*": "objects",
    "IDispatch*": "object",
}

ATTRIBUTES = {"default", "defaultvalue", "dual", "helpstring", "hidden", "id", "in", "noncreatable",
              "nonextensible", "object", "oleautomation", "optional", "out", "propget", "propput",
              "propputref", "restricted", "retval", "source", "uuid", "v1_enum", "version"}


class IdlError(Exception):
    """What the reader does not understand, with the line it stands in."""


@dataclasses.dataclass(frozen=True)
class Type:
    """What a parameter takes or a member gives."""

    kind: str  # none, flag, long, single, text, value, texts, objects, object or enumeration
    of: str = ""  # the name of the class or enumeration; "" for an object of one of several classes


@dataclasses.dataclass(frozen=True)
class Parameter:
    name: str
    type: Type
    is_optional: bool = False
    is_filled: bool = False  # the member puts a number into it
    default: object = None  # a text, flag, number or the name of a constant


@dataclasses.dataclass(frozen=True)
class Function:
    """One function of an interface: a method, or one side of a property."""

    id: int
    action: str  # call, get, set or setref
    name: str
    help: str
    is_restricted: bool
    parameters: tuple  # without the result and, where a property is set, without the new value
    type: Type  # of the result or the new value


@dataclasses.dataclass
class Member:
    """A method or a property, with all its functions."""

    name: str
    help: str
    id: int
    functions: dict  # by action
    parameters: tuple
    type: Type

    @property
    def is_method(self):
        return "call" in self.functions

    @property
    def can_be_read(self):
        return "get" in self.functions

    @property
    def can_be_set(self):
        return "set" in self.functions or "setref" in self.functions

    @property
    def is_tag(self):
        """Whether it keeps any value for the host: it is let values and set to objects."""
        return "set" in self.functions and "setref" in self.functions

    @property
    def is_restricted(self):
        return any(function.is_restricted for function in self.functions.values())

    @property
    def taken(self):
        """The parameters that a caller gives."""
        return tuple(parameter for parameter in self.parameters if not parameter.is_filled)

    @property
    def filled(self):
        """The parameters that the member puts numbers into."""
        return tuple(parameter for parameter in self.parameters if parameter.is_filled)


@dataclasses.dataclass
class Class:
    name: str
    help: str
    is_creatable: bool
    members: list  # in the order of the interface
    events: list
    # Of the class, its interface and the interface of its events; "" for none.
    uuid: str
    interface_uuid: str = ""
    events_uuid: str = ""


@dataclasses.dataclass
class Enumeration:
    name: str
    help: str
    constants: dict  # name to value


@dataclasses.dataclass
class Library:
    name: str
    version: str
    classes: list
    enumerations: list


class Attributes(dict):
    """[uuid(...), hidden, helpstring("...")]; those without a value are True."""

    def __init__(self, line):
        super().__init__()
        self.line = line

    def __missing__(self, name):
        raise IdlError(f"line {self.line}: {name!r} is missing")


def read(path):
    with open(path, encoding="utf-8") as file:
        return Reader(file.read()).read()


class Reader:
    # A text, a name (an identifier or a number with its sign) or a sign.
    TOKEN = re.compile(r'\s+|//[^\n]*|("[^"]*")|([A-Za-z_][\w]*|-?[\w][\w.-]*)|([\[\](){};:,=*])')

    def __init__(self, source):
        self.tokens = []
        self.next = 0
        place = 0
        while place < len(source):
            match = self.TOKEN.match(source, place)
            if match is None:
                line = source.count("\n", 0, place) + 1
                raise IdlError(f"line {line}: {source[place:].split()[0]!r} is not understood")
            if match.lastindex is not None:
                self.tokens.append((match[0], source.count("\n", 0, place) + 1))
            place = match.end()

    # The pieces of the language

    def read(self):
        while self.peek() == "import":
            self.until(";")
        attributes = self.attributes()
        self.expect("library")
        name = self.take()
        self.expect("{")
        enumerations, interfaces, events, classes, uuids = [], {}, {}, [], {}
        while self.peek() != "}":
            if self.peek() in ("importlib", "interface"):  # a forward declaration
                self.until(";")
                continue
            described = self.attributes()
            word = self.take()
            if word == "typedef":
                enumerations.append(self.enumeration(described))
            elif word == "interface":
                owner = self.take()
                uuids[owner] = described["uuid"]
                self.until("{")
                interfaces[owner] = self.functions()
            elif word == "dispinterface":
                owner = self.take()
                uuids[owner] = described["uuid"]
                self.expect("{")
                events[owner] = self.events()
            elif word == "coclass":
                classes.append(self.coclass(described))
            else:
                raise self.error(f"{word!r} is not understood")
        self.expect("}")
        self.expect(";")
        self.link(enumerations, interfaces, events, classes, uuids)
        return Library(name, attributes["version"], classes, enumerations)

    def attributes(self):
        found = Attributes(self.line())
        self.expect("[")
        while True:
            if self.peek() not in ATTRIBUTES:
                raise self.error(f"the attribute {self.peek()!r} is not understood")
            name = self.take()
            found[name] = True
            if self.peek() == "(":
                self.take()
                found[name] = self.take()
                self.expect(")")
            if self.take_of(",", "]") == "]":
                return found

    def enumeration(self, described):
        self.expect("enum")
        name = self.take()
        self.expect("{")
        constants = {}
        while True:
            constant = self.take()
            self.expect("=")
            constants[constant] = int(self.take())
            if self.take_of(",", "}") == "}":
                break
        self.expect(name)
        self.expect(";")
        return Enumeration(name, text(described["helpstring"]), constants)

    def functions(self):
        """The functions of an interface, to its end."""
        found = []
        while self.peek() != "}":
            described = self.attributes()
            self.expect("HRESULT")
            found.append(self.function(described))
        self.expect("}")
        self.expect(";")
        return found

    def function(self, described):
        action = "call"
        for attribute, meant in (("propget", "get"), ("propput", "set"), ("propputref", "setref")):
            if attribute in described:
                action = meant
        name = self.take()
        parameters, result = self.parameters()
        if action in ("set", "setref"):
            *parameters, given = parameters
            result = given.type
        return Function(int(described["id"]), action, name, text(described["helpstring"]),
                        "restricted" in described, tuple(parameters), result)

    def events(self):
        for word in ("properties", ":", "methods", ":"):
            self.expect(word)
        found = []
        while self.peek() != "}":
            described = self.attributes()
            self.expect("void")
            found.append(self.function(described))
        self.expect("}")
        self.expect(";")
        return found

    def coclass(self, described):
        """With the names of its interfaces in place of members and events."""
        made = Class(self.take(), text(described["helpstring"]), "noncreatable" not in described,
                     [], [], described["uuid"])
        self.expect("{")
        while self.peek() != "}":
            attributes = self.attributes()
            self.take_of("interface", "dispinterface")
            (made.events if "source" in attributes else made.members).append(self.take())
            self.expect(";")
        self.expect("}")
        self.expect(";")
        return made

    def parameters(self):
        """What stands in parentheses, as parameters and the type of the result."""
        found, result = [], Type("none")
        self.expect("(")
        while self.peek() != ")":
            attributes = self.attributes()
            written = self.take()
            if self.peek() == "(":  # SAFEARRAY(BSTR)
                written += self.take() + self.take() + self.take()
            while self.peek() == "*":
                written += self.take()
            name = self.take()
            if "retval" in attributes:
                result = self.type_of(written.removesuffix("*"))
            else:
                found.append(self.parameter(name, written, attributes))
            if self.take_of(",", ")") == ")":
                break
        else:
            self.expect(")")
        self.expect(";")
        return found, result

    def parameter(self, name, written, attributes):
        is_filled = "out" in attributes
        written = written.removesuffix("*") if is_filled else written
        default = attributes.get("defaultvalue")
        kind = self.type_of(written)
        if is_filled and kind.kind != "single":
            raise self.error(f"{name!r} is filled with another type than float")
        if default is not None:
            if kind.kind == "text":
                default = text(default)
            elif kind.kind == "flag":
                default = int(default) != 0
            elif re.fullmatch(r"-?\d+", default):
                default = int(default)
        return Parameter(name, kind, "optional" in attributes, is_filled, default)

    @staticmethod
    def type_of(written):
        """Classes are told from enumerations once all names are known."""
        return Type(SCALARS[written]) if written in SCALARS else Type("named", written)

    # What belongs together

    def link(self, enumerations, interfaces, events, classes, uuids):
        class_of = {made.members[0]: made.name for made in classes}
        for name in class_of.keys() ^ interfaces.keys():
            raise IdlError(f"{name} is not both an interface and that of a class")
        enumeration_names = {enumeration.name for enumeration in enumerations}

        def named(type):
            if type.kind != "named":
                return type
            name = type.of.removesuffix("*")
            if name in class_of and type.of.endswith("*"):
                return Type("object", class_of[name])
            if name in enumeration_names and not type.of.endswith("*"):
                return Type("enumeration", name)
            raise IdlError(f"the type {type.of} is not known")

        def known(function):
            parameters = tuple(dataclasses.replace(parameter, type=named(parameter.type))
                               for parameter in function.parameters)
            return dataclasses.replace(function, parameters=parameters, type=named(function.type))

        for made in classes:
            made.interface_uuid = uuids[made.members[0]]
            made.events_uuid = "".join(uuids[name] for name in made.events)
            made.members = members_of(known(function) for function in interfaces[made.members[0]])
            made.events = members_of(known(function) for name in made.events
                                     for function in events[name])

    # Tokens

    def peek(self):
        return self.tokens[self.next][0] if self.next < len(self.tokens) else ""

    def take(self):
        token = self.peek()
        self.next += 1
        return token

    def take_of(self, *expected):
        if self.peek() not in expected:
            raise self.error(f"{self.peek()!r} stands where {' or '.join(expected)} is expected")
        return self.take()

    def expect(self, token):
        self.take_of(token)

    def until(self, token):
        while self.take() != token:
            if not self.peek():
                raise self.error(f"{token!r} is missing")

    def line(self):
        return self.tokens[min(self.next, len(self.tokens) - 1)][1]

    def error(self, message):
        return IdlError(f"line {self.line()}: {message}")


def text(token):
    return token[1:-1]


def members_of(functions):
    """The functions put together by their names, in the order of the first of each."""
    members = {}
    for function in functions:
        member = members.get(function.name)
        if member is None:
            members[function.name] = Member(function.name, function.help, function.id,
                                            {function.action: function}, function.parameters,
                                            function.type)
            continue
        if (member.id, member.type, member.parameters, member.help) != (
                function.id, function.type, function.parameters, function.help):
            raise IdlError(f"the sides of the property {function.name} differ")
        if function.action in member.functions or "call" in (function.action, *member.functions):
            raise IdlError(f"{function.name} stands twice")
        member.functions[function.action] = function
    if len({member.id for member in members.values()}) < len(members):
        raise IdlError(f"two of {', '.join(members)} have the same id")
    return list(members.values())
