"""The C++ sources of the project and what they include. Used by check_dependencies and check_code."""
import re
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
FOLDERS = ("src", "tests", "bench", "fuzz")
_INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]')


def code_files():
    """All sources and headers, relative to the root, in a fixed order."""
    found = (p for folder in FOLDERS for p in (ROOT / folder).rglob("*") if p.suffix in (".h", ".cpp"))
    return sorted(str(p.relative_to(ROOT)) for p in found)


class Includes:
    """The include directives of each file."""

    def __init__(self):
        self.files = code_files()
        self.text = {f: (ROOT / f).read_bytes() for f in self.files}
        known = set(self.files)
        # Of each file: (line number, file of the project or None, name as it is written, is it in angle brackets).
        self.of = {f: list(self._read(f, known)) for f in self.files}

    def _read(self, file, known):
        for number, line in enumerate(self.text[file].decode(errors="replace").splitlines(), 1):
            if match := _INCLUDE.match(line):
                bracket, name = match.groups()
                # In a module, beside the file, or from the root, as helpers of the tests are.
                places = ("src/" + name, str(Path(file).parent / name), name)
                yield number, next((p for p in places if p in known), None), name, bracket == "<"

    def closure(self, file):
        """The file and all files of the project that it includes, directly or not."""
        seen, todo = set(), [file]
        while todo:
            current = todo.pop()
            if current not in seen:
                seen.add(current)
                todo += [target for _, target, _, _ in self.of[current] if target]
        return sorted(seen)
