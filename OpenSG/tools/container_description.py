"""Reads container descriptions (see generate_containers.py) into classes and fields."""

import re

CPP_TYPES = {"Bool": "bool", "String": "std::string", "VoidP": "void *"}
FLAGS = re.compile(r"\s*\[(.*)\]$")
NUMBER = re.compile(r"-?\d+(\.\d+)?")
REPEATED = re.compile(r"(\d+) x (\S+)")


class Described:
    """What the flags in brackets say: a word is true, a word with another has that as value."""

    def __init__(self, flags):
        self._flags = {}
        for flag in filter(None, (f.strip() for f in flags.split(","))):
            word, _, value = flag.partition(" ")
            self._flags[word] = value or True

    def __getattr__(self, word):
        return self._flags.get(word)


class Field(Described):
    def __init__(self, line, comment):
        text, flags = split_flags(line)
        super().__init__(flags)
        self.name, self.type, *rest = text.split(None, 2)
        self.default = rest[0] if rest else ""
        self.comment = comment
        self.multi = self.type.startswith("MF")
        self.prefix = self.type[:2]
        self.value_name = self.type[2:]
        self.value_type = CPP_TYPES.get(self.value_name, self.value_name)
        self.title = self.name[0].upper() + self.name[1:]
        self.id = f"{self.title}FieldId"
        self.member = f"_{self.prefix.lower()}{self.title}"

    def values(self):
        """The default as list of words."""
        return REPEATED.sub(lambda m: " ".join([m[2]] * int(m[1])), self.default).split()

    def literal(self, word):
        if not self.is_real() or not NUMBER.fullmatch(word):
            return word
        return word + ("f" if "." in word else ".f")

    def is_real(self):
        return self.value_name == "Real32" or re.fullmatch(r"(Vec|Pnt|Color)\df", self.value_name)

    def initializer(self):
        """The member's initializer in C++, with a leading blank; nothing for the type's own."""
        if not self.default:
            return ""
        words = ", ".join(self.literal(w) for w in self.values())
        if self.multi:
            return f" = listOf<{self.type}>({{ {words} }})"
        if len(self.values()) > 1 and self.value_name != "String":
            return f" {{ {self.value_type}({words}) }}"
        return f" {{ {words} }}"


class Container(Described):
    def __init__(self, line, comment):
        text, flags = split_flags(line)
        super().__init__(flags)
        self.name, self.parent = (word.strip() for word in text.split(":"))
        self.comment = comment
        self.cpp_name = self.name + ("Base" if self.behaviour else "")
        self.pointer_fields = {"both": ["SF", "MF"], "none": []}.get(
            self.pointers or "both", [self.pointers])
        self.fields = []

    def follows_edits(self):
        return any(f.counted or f.numbered for f in self.fields)


def split_flags(line):
    found = FLAGS.search(line)
    return (line[: found.start()], found[1]) if found else (line, "")


def read_classes(path):
    """The classes of a file. A blank line ends a comment that belongs to no class."""
    classes, comment = [], []
    for line in path.read_text().splitlines():
        text = line.strip()
        if text.startswith("#"):
            comment.append(text[1:].strip())
            continue
        if text and line[0].isspace():
            classes[-1].fields.append(Field(text, comment))
        elif text:
            classes.append(Container(text, comment))
        comment = []
    return classes
