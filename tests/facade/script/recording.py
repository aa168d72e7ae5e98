"""The steps of a recording (../Recording.h), each with what the table tells of its member."""

import dataclasses
import json
import pathlib
import struct
import sys

ROOT = pathlib.Path(__file__).resolve().parents[3]
sys.path.insert(0, str(ROOT / "hosts" / "table"))

import idl  # noqa: E402

LIBRARY = idl.read(ROOT / "com" / "Folivar.idl")
MEMBERS = {described.name: {member.name: member for member in described.members}
           for described in LIBRARY.classes}
CONSTANTS = {described.name: described.constants for described in LIBRARY.enumerations}


class Single(float):
    """A number of single precision, with the digits that tell it from its neighbours."""

    def __new__(cls, digits):
        number = super().__new__(cls, struct.unpack("f", struct.pack("f", float(digits)))[0])
        number.digits = digits
        return number


@dataclasses.dataclass(frozen=True)
class Object:
    name: str
    of: str  # its class


@dataclasses.dataclass(frozen=True)
class Constant:
    """A value of an enumeration that is listed there."""

    name: str
    value: int


MISSING = object()


@dataclasses.dataclass(frozen=True)
class Argument:
    parameter: idl.Parameter
    value: object  # a Single, int, bool, str, Constant, Object, None for no object, or MISSING

    @property
    def is_left_out(self):
        """Whether the member would be given the same without it."""
        plain = self.value.name if isinstance(self.value, Constant) else self.value
        return self.value is MISSING or (self.parameter.is_optional
                                         and plain == self.parameter.default)


@dataclasses.dataclass(frozen=True)
class Step:
    action: str  # create, reach, call, set, get or release
    object: Object
    member: idl.Member = None
    arguments: tuple = ()
    value: object = None  # the object reached, or what a property is set to or was found to be


def read(path):
    objects = {}

    def object_of(name, of):
        objects[name] = Object(name, of)
        return objects[name]

    def value_of(written, type):
        if isinstance(written, dict):
            return objects[written["object"]] if written else MISSING
        if type.kind == "enumeration":
            for name, value in CONSTANTS[type.of].items():
                if value == written:
                    return Constant(name, value)
        return written

    def step_of(action, *written):
        if action == "create":
            return Step(action, object_of(written[1], written[0]))
        made = objects[written[0]]
        if action == "release":
            return Step(action, made)
        member = MEMBERS[made.of][written[1]]
        if action == "set":
            return Step(action, made, member, (), value_of(written[2], member.type))
        arguments = tuple(Argument(parameter, value_of(value, parameter.type))
                          for parameter, value in zip(member.parameters, written[2]))
        if action == "reach":
            return Step(action, made, member, arguments, object_of(written[3], member.type.of))
        value = value_of(written[3], member.type) if action == "get" else None
        return Step(action, made, member, arguments, value)

    with open(path, encoding="ascii") as lines:
        return [step_of(*json.loads(line, parse_float=Single)) for line in lines]
