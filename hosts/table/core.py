"""How the members of the interface are called in the core."""

# Members that the rules below do not find. `{class}` is the class of the object.
WORDS = {
    "KeyExists": "{class}::KeyExists<Value>",
    "NewEnum": "MembersOf<{class}>",
    "page": "{class}::Page",
    "ReOrder": "{class}::ReOrder<Value, Value>",
}

# Members that may read or write files.
LONG_CALLS = {
    ("PDFDocument", "SavePDFFile"),
    ("PDFFont", "Bold"),
    ("PDFFont", "Italic"),
    ("PDFFonts", "Add"),
    ("PDFFonts", "AvailableFonts"),
    ("PDFFonts", "Item"),
    ("PDFImage", "FileName"),
    ("PDFTextBox", "SelBold"),
    ("PDFTextBox", "SelItalic"),
}


def member_of_core(owner, function):
    """What the core calls it: a property X is read as X and set as SetX."""
    if function.action in ("set", "setref"):
        return f"{owner.name}::Set{function.name[0].upper()}{function.name[1:]}"
    return WORDS.get(function.name, "{class}::" + function.name).replace("{class}", owner.name)


def header_of_core(name, folder):
    """Where the core declares a class, as it is included."""
    found = sorted(folder.glob(f"*/{name}.h"))
    if len(found) != 1:
        raise SystemExit(f"{folder}: {len(found)} headers are called {name}.h")
    return found[0].relative_to(folder.parent).as_posix()
