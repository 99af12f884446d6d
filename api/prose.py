"""The words of the public header: docs with their fragments filled in, statuses by name, all wrapped to the line.

A doc has paragraphs, with blank lines between them, and lists, whose items are indented. An item may have two columns,
with two blanks or more between them. Lines are broken anew, and columns aligned; what is indented deeper than an item
continues it.
"""

import itertools
import re
import textwrap
import tomllib
from pathlib import Path

API = Path(__file__).parent
LIMIT = 120


def _read(name):
    return tomllib.loads((API / name).read_text())


FRAGMENTS = _read("fragments.toml")
CODES = _read("statuses.toml")["codes"]
CHECKS = _read("statuses.toml")["checks"]


def comment(text):
    """A text as the inside of a C comment: every line with its star."""
    return "\n".join(f" * {line}".rstrip() for line in _layout(_fill(text.strip()), LIMIT - 3))


def statuses_text(statuses):
    """The statuses of a family. An entry names a check of statuses.toml, or is a code and its condition; one that ends
    with a colon tells the members that the entries behind it are for."""
    if not statuses:
        return ""
    headed = statuses if statuses[0].endswith(":") else [":", *statuses]
    lines = []
    for entry in headed:
        if entry.endswith(":"):
            members = f" of {entry[:-1]}" if entry != ":" else ""
            lines.append(f"Statuses{members}, in this order:")
        else:
            lines.append("  {}  {}".format(*_status(entry)))
    return "\n".join(lines)


def codes_text(families):
    """The lines of an enumeration of all codes, each with its meaning and the families that return it."""
    returned = {}
    for family in families: # several may have one name
        checks = [s for s in family.statuses if not s.endswith(":")]
        if checks:
            returned.setdefault(family.name, set()).update(_status(check)[0] for check in checks)
    lines = []
    for code, (value, meaning) in CODES.items():
        by = _those([name for name in returned if code in returned[name]], list(returned))
        comma = "" if code == list(CODES)[-1] else ","
        head = f"    {code} = {value}{comma}".ljust(39) + "/* "
        lines += textwrap.wrap(meaning + by, LIMIT - 3, initial_indent=head, subsequent_indent=" " * len(head))
        lines[-1] += " */"
    return "\n".join(lines)


def codes_of(statuses, types):
    """The codes that members of these types may return: those behind a heading that is their type code, or all."""
    sections, heading = {}, ""
    for entry in statuses:
        if entry.endswith(":"):
            heading = entry[:-1]
        else:
            sections.setdefault(heading, []).append(_status(entry)[0])
    return sections.get(types) or [code for codes in sections.values() for code in codes]


def _status(entry):
    """An entry's code and condition."""
    code, _, condition = CHECKS.get(entry, entry).partition(" ")
    if code not in CODES or not condition:
        raise ValueError(f"no status: {entry!r}")
    return code, condition


def _those(some, every):
    """The names of `some`, or of those left out where they are fewer."""
    if not some:
        return ""
    others = [name for name in every if name not in some]
    if len(others) < len(some):
        return f" (every family but {', '.join(others)})" if others else " (every family)"
    return f" ({', '.join(some)})"


def _fill(text):
    """The text with fragments in the place of their names."""
    filled = re.sub(r"\{(\w+)\}", lambda match: FRAGMENTS[match[1]].strip("\n"), text)
    return filled if filled == text else _fill(filled)


def _layout(text, width):
    """The lines of a text, paragraphs and lists, broken at `width`."""
    lines = []
    for is_list, group in itertools.groupby(_logical_lines(text), key=lambda line: line.startswith(" ")):
        group = list(group)
        keys = [re.match(r"(\s*)(\S+(?: \S+)*)\s{2,}(?=\S)", line) for line in group]
        column = max((len(k[1] + k[2]) + 2 for k in keys if k), default=0)
        for line, key in zip(group, keys):
            head = (key[1] + key[2]).ljust(column) if is_list and key else re.match(r"\s*", line)[0]
            rest = line[key.end():] if is_list and key else line.strip()
            indent = " " * len(head)
            lines += textwrap.wrap(rest, width, initial_indent=head, subsequent_indent=indent, break_long_words=False,
                                   break_on_hyphens=False) or [""]
    return lines


def _logical_lines(text):
    """Paragraphs, items and blank lines, each in one piece."""
    logical, depth = [], None # depth: how far the last one is indented; None after a blank line
    for line in text.splitlines():
        indent = len(line) - len(line.lstrip())
        if line.strip() and depth is not None and (indent > depth if depth else not indent):
            logical[-1] += " " + line.strip()
        else:
            logical.append(line.rstrip())
            depth = indent if line.strip() else None
    return logical
