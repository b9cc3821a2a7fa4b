#!/usr/bin/env python3
"""Changes the library's sources at one place at a time and reports which changes no test notices.

    tools/mutants.py [COUNT | all | survivors] [SEED] [PATH...]

COUNT lines are drawn (300 by default), evenly from everything under src/ that the Linux build
compiles, and one change is made on each; the same SEED draws the same. `all` makes every change,
`survivors` those again that went unnoticed in the run before. PATH... keeps to some files. The exit
status is 0 when at least 90 % are noticed.

A change is noticed when a public or inside test fails, crashes or does not end, in a plain build or,
should that pass, in one with sanitizers; or when a static_assert of the library refuses it. A change
that does not compile for any other reason was none, and is only counted. Warnings are off, so that
they refuse nothing.

tests/mutants_accepted.txt lists the changes that are rightly unnoticed, each with its reason. They
count as unnoticed in the first figure and are left out of the second.

Everything happens in build/mutants, on copies; the working tree is not touched. A run that was
stopped goes on where it was, unless a file changed in between."""
import argparse
import collections
import dataclasses
import hashlib
import json
import os
import pathlib
import random
import re
import resource
import signal
import subprocess
import sys
import textwrap

ROOT = pathlib.Path(__file__).resolve().parents[1]
WORK = ROOT / "build/mutants"
ACCEPTED = ROOT / "tests/mutants_accepted.txt"
PLATFORM = "src/platform/"
WANTED_PERCENT = 90

# ---- Builds -------------------------------------------------------------------------------------

PLAIN = "-O1 -w"
SANITIZED = f"{PLAIN} -fsanitize=address,undefined -fno-sanitize-recover=all"

# What to build, and what then to run: the library first, since most changes are noticed before the
# inside tests need to be linked; the drawing tests, the slowest, after the others of their program.
STEPS = (
    ("stmdata", "stmdata_tests", "--source-file-exclude=*drawing*"),
    ("stmdata", "stmdata_tests", "--source-file=*drawing*"),
    ("stmdata_inside_tests", "stmdata_inside_tests", ""),
)


class Build:
    """A copy of a tree and what is built from it. Each build has a copy of its own, so that the
    sanitized one compiles again only what it is asked about."""

    def __init__(self, name, flags, original):
        self.tree, self.out, self.name = WORK / name / "tree", WORK / name / "out", name
        self.processor_seconds = 0
        self.sync(original)
        if not (self.out / "build.ninja").exists():
            say(f"building {name}, a minute or two")
        self.run_checked("cmake", "-S", self.tree, "-B", self.out, "-G", "Ninja", "-DCMAKE_BUILD_TYPE=",
                         f"-DCMAKE_CXX_FLAGS={flags}",
                         "-DCMAKE_LINK_DEPENDS_NO_SHARED=ON")
        self.run_checked("ninja", "-C", self.out, "-j2", *{name for step in STEPS for name in step[:2]})
        before = resource.getrusage(resource.RUSAGE_CHILDREN)
        if not all(self.run_test(*step[1:]) for step in STEPS):
            sys.exit(f"the {name} tests fail without any change: {self.out}")
        after = resource.getrusage(resource.RUSAGE_CHILDREN)
        used = after.ru_utime + after.ru_stime - before.ru_utime - before.ru_stime
        self.processor_seconds = max(2, int(5 * used) + 1)  # more is an endless loop

    def run_checked(self, *command):
        done = subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True)
        if done.returncode:
            sys.exit(f"{done.stdout[-3000:]}\nthe {self.name} build failed")

    def sync(self, original):
        """Only files that differ are written, so that the build stays incremental."""
        wanted = files_of(original)
        for path in self.tree.rglob("*"):
            if path.is_file() and path.relative_to(self.tree) not in wanted:
                path.unlink()
        for path in wanted:
            source, copy = (original / path).read_bytes(), self.tree / path
            if not copy.exists() or copy.read_bytes() != source:
                copy.parent.mkdir(parents=True, exist_ok=True)
                copy.write_bytes(source)

    def sources(self):
        """What is compiled into the library, from the dependencies that the compiler reported."""
        listed = subprocess.run(["ninja", "-C", self.out, "-t", "deps"], capture_output=True, text=True).stdout
        found = {pathlib.Path(os.path.normpath(self.out / line.strip())) for line in listed.splitlines()
                 if line.startswith("    ")}
        inside = (path.relative_to(self.tree) for path in found if path.is_relative_to(self.tree / "src"))
        return sorted(str(path) for path in inside if path.suffix in (".cpp", ".h"))

    def run_test(self, program, filter):
        def limit():
            os.setsid()
            resource.setrlimit(resource.RLIMIT_CORE, (0, 0))
            if self.processor_seconds:
                resource.setrlimit(resource.RLIMIT_CPU, (self.processor_seconds, self.processor_seconds))
            if self.name == "plain":  # the sanitizers reserve more than they use
                resource.setrlimit(resource.RLIMIT_DATA, (1 << 30, 1 << 30))

        process = subprocess.Popen([self.out / program, "--abort-after=1", *filter.split()], cwd=self.out,
                                   stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, preexec_fn=limit)
        try:
            return process.wait(timeout=120) == 0
        except subprocess.TimeoutExpired:  # it waits for something
            return False
        finally:
            if process.poll() is None:
                os.killpg(process.pid, signal.SIGKILL)
                process.wait()

    def judge(self, original, change):
        """What becomes of one change of a text: 'stillborn', 'noticed' or 'survived'."""
        copy = self.tree / change.path
        copy.write_text(original[:change.begin] + change.text + original[change.end:])
        try:
            for target, *test in STEPS:
                built = subprocess.run(["ninja", "-C", self.out, "-j2", target], capture_output=True, text=True)
                if built.returncode:
                    asserted = "static assertion failed" in built.stdout
                    return "noticed" if asserted else "stillborn"
                if not self.run_test(*test):
                    return "noticed"
            return "survived"
        finally:
            copy.write_text(original)


def files_of(tree):
    skipped = {"build", "dist", ".git", "__pycache__"}
    files = set()
    for folder, folders, names in os.walk(tree):
        folders[:] = [name for name in folders if name not in skipped]
        here = pathlib.Path(folder).relative_to(tree)
        files.update(here / name for name in names if name not in skipped)
    return files


# ---- Changes ------------------------------------------------------------------------------------


@dataclasses.dataclass(frozen=True)
class Change:
    path: str
    line: int  # from 1
    begin: int  # what is replaced, in characters of the file
    end: int
    text: str
    before: str  # the lines it stands on, without and with the change
    after: str

    def key(self):
        """Names the change also when other lines have come or gone."""
        return (self.path, self.before, self.after)

    def place(self):
        return (self.path, self.begin, self.before, self.after)


TOKEN = re.compile(r"""
    (?P<space>\s+ | //[^\n]* | /\*.*?\*/)
  | (?P<directive>^[ ]*\#(?:[^\\\n]|\\.)*)
  | (?P<string>(?:u8?|U|L)?"(?:[^"\\\n]|\\.)*")
  | (?P<char>'(?:[^'\\\n]|\\.)+')
  | (?P<number>(?:0[xX][0-9A-Fa-f']+|\d[\d']*)[uUlL]*)
  | (?P<word>[A-Za-z_]\w*)
  | (?P<operator><<=|>>=|->|\+\+|--|[<>=!]=|&&|\|\||<<|>>|[-+*/%|&^]=|::|.)
""", re.X | re.M | re.S)

# Between spaces these are operators of two sides, as the tree is formatted.
BINARY = {
    "<": ("<=", ">="), "<=": ("<", ">"), ">": (">=", "<="), ">=": (">", "<"), "==": ("!=",), "!=": ("==",),
    "+": ("-",), "-": ("+",), "*": ("/",), "/": ("*",), "%": ("/",), "&&": ("||",), "||": ("&&",),
    "&": ("|",), "|": ("&",), "^": ("|",), "<<": (">>",), ">>": ("<<",),
    "+=": ("-=",), "-=": ("+=",), "|=": ("&=", "="), "&=": ("|=", "="), "^=": ("|=",),
}
PREFIX = {"!": ("",), "~": ("",), "++": ("--",), "--": ("++",)}
WORDS = {"true": ("false",), "false": ("true",)}
NO_STATEMENT = set("return if for while do else switch case default const constexpr auto using static struct "
                   "template namespace goto extern inline typedef enum public static_assert".split())


class Source:
    """A file and the changes that can be made in it."""

    def __init__(self, path, text):
        self.path, self.text, self.changes = path, text, []
        self.tokens = [(m.lastgroup, m[0], m.start(), m.end()) for m in TOKEN.finditer(text)
                       if m.lastgroup not in ("space", "directive")]
        self.close = self.match_brackets()
        self.asserts = [(self.tokens[i][2], self.tokens[self.close[i + 1]][3]) for i in range(len(self.tokens))
                        if self.tokens[i][1] == "static_assert"]
        for i in range(len(self.tokens)):
            self.change_token(i)
            self.change_statement(i)
        self.drop_rows()
        self.changes.sort(key=lambda change: (change.begin, change.end, change.text))

    def match_brackets(self):
        opened, close, self.around = [], {}, []
        for i, (_, text, _, _) in enumerate(self.tokens):
            if text in (")", "]", "}") and opened:
                close[opened.pop()] = i
            self.around.append(self.tokens[opened[-1]][1] if opened else "")
            if text in ("(", "[", "{"):
                opened.append(i)
        return close

    def add(self, begin, end, text):
        if any(first <= begin < last for first, last in self.asserts):
            return
        first = self.text.rfind("\n", 0, begin) + 1
        last = self.text.find("\n", end)
        lines, changed = self.text[first:last], self.text[first:begin] + text + self.text[end:last]
        self.changes.append(Change(self.path, self.text.count("\n", 0, begin) + 1, begin, end, text,
                                   " ".join(lines.split()), " ".join(changed.split())))

    def text_of(self, i):
        return self.tokens[i][1] if 0 <= i < len(self.tokens) else ""

    def change_token(self, i):
        kind, text, begin, end = self.tokens[i]
        others = ()
        if kind == "operator":
            spaced = self.text[begin - 1].isspace() and self.text[end].isspace()
            others = BINARY.get(text, ()) if spaced else PREFIX.get(text, ())
        elif kind == "word":
            others = WORDS.get(text, ())
        elif kind == "number":
            others = (self.other_number(i),)
        elif kind == "char":
            others = (other_text(text),)
        elif kind == "string" and self.text_of(i - 1) != "extern":
            others = (other_text(text),)
        for other in others:
            if other is not None:
                self.add(begin, end, other)

    def other_number(self, i):
        """One more; one less where one more would not fit or, as the length of an array, not hurt."""
        text = self.tokens[i][1]
        digits = text.rstrip("uUlL")
        value = int(digits.replace("'", ""), 0)
        declares = self.text_of(i - 1) == "[" and self.tokens[i - 2][0] == self.tokens[i - 3][0] == "word"
        if declares and self.tokens[i - 3][1] == "return":
            declares = False
        full = value >= 0xFF and (value + 1) & value == 0
        value += -1 if full or (declares and value > 1) else 1
        shown = f"0x{value:0{len(digits) - 2}X}" if digits[:2] in ("0x", "0X") else str(value)
        return shown + text[len(digits):]

    def change_statement(self, i):
        kind, text, begin, _ = self.tokens[i]
        if text == "if" and self.text_of(i + 1) == "(":
            last = self.close[i + 1]
            if not any(t[1] in ("=", ";") for t in self.tokens[i + 2:last]):
                self.add(self.tokens[i + 2][2], self.tokens[last - 1][3], "false")
        if text == "return" and self.text_of(i + 1) not in (";", "{"):
            last = self.find_end(i)
            if self.text[self.tokens[i + 1][2]:self.tokens[last][2]] not in ("0", "false", "nullptr"):
                self.add(self.tokens[i + 1][2], self.tokens[last - 1][3], "{}")
        after_label = self.text_of(i - 1) == ":" and "case" in (self.text_of(i - 3), self.text_of(i - 4))
        begins = self.text_of(i - 1) in (";", "{", "}", ")", "else") or after_label
        if self.around[i] != "{" or not begins:
            return
        if text in ("break", "continue", "++", "--", "*") or (kind == "word" and self.is_expression(i)) or (
                text == "return" and self.text_of(i + 1) == ";"):
            self.add(begin, self.tokens[self.find_end(i) - 1][3], "")

    def find_end(self, i):
        while self.text_of(i) not in (";", ""):
            i = self.close.get(i, i) + 1
        return i

    def is_expression(self, i):
        """An assignment or a call; a declaration has two words in a row, or a pointer's star."""
        if self.tokens[i][1] in NO_STATEMENT:
            return False
        i += 1
        while self.text_of(i) in ("::", ".", "->", "["):
            i = self.close[i] + 1 if self.text_of(i) == "[" else i + 2
        if self.text_of(i) == "(":
            return self.text_of(i + 1) != "*"  # a pointer to a function
        return self.text_of(i) in ("=", "++", "--", "+=", "-=", "|=", "&=", "^=", "<<=", ">>=")

    def drop_rows(self):
        for match in re.finditer(r"^ +(\{.*\},)(?: *//.*)?$", self.text, re.M):
            self.add(match.start(1), match.end(1), "")


def other_text(literal):
    """The same with one character exchanged, in the middle; an empty text gets one."""
    quote = literal[-1]
    begin = literal.index(quote) + 1
    if begin == len(literal) - 1:
        return literal[:begin] + "?" + quote
    parts = re.findall(r"\\u[0-9A-Fa-f]{4}|\\x[0-9A-Fa-f]+|\\[0-7]+|\\.|.", literal[begin:-1])
    middle = len(parts) // 2
    part = parts[middle]
    if part[0] != "\\":
        other = "x" if part != "x" else "y"
    elif len(part) > 2 or part == "\\0":
        other = part[:-1] + ("1" if part[-1] != "1" else "2")
    else:
        other = "x"
    return literal[:begin] + "".join(parts[:middle] + [other] + parts[middle + 1:]) + quote


def draw(sources, count, seed):
    """One change on each of `count` lines that lie evenly over all lines with something to change;
    what is wanted beyond the lines comes from the changes that are left."""
    lines = collections.defaultdict(list)
    for source in sources:
        for change in source.changes:
            lines[(change.path, change.line)].append(change)
    places, chance = [lines[place] for place in sorted(lines)], random.Random(seed)
    steps = min(count, len(places))
    drawn = [chance.choice(places[int((i + chance.random()) * len(places) / steps)]) for i in range(steps)]
    drawn = list(dict.fromkeys(drawn))
    taken = set(drawn)
    left = [change for place in places for change in place if change not in taken]
    drawn += chance.sample(left, min(count - len(drawn), len(left)))
    return drawn


# ---- Memory of runs -----------------------------------------------------------------------------


class Memory:
    """The verdicts on this state of the tree, kept as they come."""

    def __init__(self, tree):
        digest = hashlib.sha256()
        for path in sorted(files_of(tree)):
            matters = path.parts[0] in ("src", "include", "tests", "cmake", "tools", "CMakeLists.txt")
            if matters and ROOT / path != ACCEPTED:
                digest.update(str(path).encode() + (tree / path).read_bytes())
        path = WORK / "verdicts.txt"
        head, *lines = path.read_text().splitlines() if path.exists() else [""]
        same = head == digest.hexdigest()
        kept = {tuple(place): verdict for verdict, *place in map(json.loads, lines)}
        self.survivors = {(path, before, after) for (path, _, before, after), verdict in kept.items()
                          if verdict == "survived"}
        self.verdicts = kept if same else {}
        self.file = open(path, "a" if same else "w")
        if not same:
            print(digest.hexdigest(), file=self.file, flush=True)

    def keep(self, change, verdict):
        print(json.dumps([verdict, *change.place()]), file=self.file, flush=True)


class Accepted:
    """The changes that are rightly unnoticed, in blocks of: the path; '- ' and the line; '+ ' and the
    line with the change; the reason, indented. '...' stands for anything."""

    def __init__(self):
        self.patterns, self.used = [], set()
        path = None
        lines = ACCEPTED.read_text().splitlines() if ACCEPTED.exists() else []
        for i, line in enumerate(lines):
            if line.startswith("src/"):
                path = line.strip()
            elif line.startswith("- "):
                before = line[2:]
            elif line.startswith("+ ") or line == "+":
                if not lines[i + 1:] or not lines[i + 1].startswith("  "):
                    sys.exit(f"{ACCEPTED.relative_to(ROOT)}:{i + 1}: a reason has to follow, indented")
                pattern = re.escape(f"{before}\n{line[2:]}").replace(r"\.\.\.", ".*")
                self.patterns.append((path, re.compile(pattern), f"{path}: {line[2:]}"))

    def __contains__(self, change):
        for path, pattern, name in self.patterns:
            if path == change.path and pattern.fullmatch(f"{change.before}\n{change.after}"):
                self.used.add(name)
                return True
        return False


# ---- Report -------------------------------------------------------------------------------------


def say(text):
    print(text, file=sys.stderr, flush=True)


def progress(text):
    if sys.stderr.isatty():
        print(f"\r\033[K{text}", end="", file=sys.stderr, flush=True)


def figure(counts):
    judged = counts["noticed"] + counts["survived"] + counts["accepted"]
    percent = 100 * counts["noticed"] / judged if judged else 100
    asked = judged - counts["accepted"]
    of_asked = 100 * counts["noticed"] / asked if asked else 100
    return percent, (f"{counts['noticed']} of {judged} noticed, {percent:.1f} %; without {counts['accepted']} "
                     f"accepted {of_asked:.1f} %; {counts['stillborn']} did not compile")


def report(verdicts, accepted):
    table = collections.defaultdict(collections.Counter)
    for change, verdict in sorted(verdicts.items(), key=lambda item: (item[0].path, item[0].begin)):
        if verdict == "survived" and change in accepted:
            verdict = "accepted"
        elif verdict == "survived":
            print(f"{change.path}:{change.line}\n- {change.before}\n+ {change.after}")
        table[change.path][verdict] += 1
    print(f"\n{'noticed':>8}{'survived':>9}{'accepted':>9}{'stillborn':>10}  file")
    for path, counts in sorted(table.items()):
        print(f"{counts['noticed']:8}{counts['survived']:9}{counts['accepted']:9}{counts['stillborn']:10}  {path}")
    groups = [
        ("all", table.values()),
        ("outside src/platform", [counts for path, counts in table.items() if not path.startswith(PLATFORM)]),
        ("src/platform", [counts for path, counts in table.items() if path.startswith(PLATFORM)]),
    ]
    print()
    percents = []
    for name, group in groups:
        percent, text = figure(sum(group, collections.Counter()))
        percents.append(percent)
        print(f"{name}: {text}")
    return percents[0] >= WANTED_PERCENT


def read_arguments():
    parser = argparse.ArgumentParser(
        description=__doc__, usage=argparse.SUPPRESS, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("count", nargs="?", default="300")
    parser.add_argument("seed", nargs="?", type=int, default=1)
    parser.add_argument("paths", nargs="*")
    arguments = parser.parse_args()
    if not arguments.count.isdigit() and arguments.count not in ("all", "survivors"):
        parser.error("how many? A number, 'all' or 'survivors'")
    return arguments


def in_working_order(changes, seed):
    """File by file, which spares building, but the files at random: so that a run that is stopped
    has seen something of everything."""
    paths = sorted({change.path for change in changes})
    random.Random(seed).shuffle(paths)
    return sorted(changes, key=lambda change: (paths.index(change.path), change.begin))


def judge_all(changes, texts, builds, memory, verdicts):
    survived = 0
    for number, change in enumerate(changes, 1):
        progress(f"{number}/{len(changes)}, {survived} survived, {change.path}:{change.line}")
        verdict = memory.verdicts.get(change.place())
        if not verdict:
            for build in builds:
                verdict = build.judge(texts[change.path], change)
                if verdict != "survived":
                    break
            memory.keep(change, verdict)
        survived += verdict == "survived"
        verdicts[change] = verdict
    progress("")


def main():
    arguments = read_arguments()
    WORK.mkdir(parents=True, exist_ok=True)
    plain = Build("plain", PLAIN, ROOT)
    sanitized = Build("sanitized", SANITIZED, plain.tree)
    sources = [Source(path, (plain.tree / path).read_text()) for path in plain.sources()
               if not arguments.paths or any(path.startswith(start) for start in arguments.paths)]
    texts = {source.path: source.text for source in sources}
    memory, accepted = Memory(plain.tree), Accepted()
    every = [change for source in sources for change in source.changes]
    if arguments.count == "all":
        changes = every
    elif arguments.count == "survivors":
        changes = [change for change in every if change.key() in memory.survivors]
    else:
        changes = draw(sources, int(arguments.count), arguments.seed)
    for change in every:
        change in accepted  # noted as used
    for name in () if arguments.paths else (name for *_, name in accepted.patterns if name not in accepted.used):
        say(f"{ACCEPTED.relative_to(ROOT)}: no such change any more: {name}")
    say(f"{len(changes)} of {len(every)} changes in {len(sources)} files")

    verdicts = {}
    try:
        judge_all(in_working_order(changes, arguments.seed), texts, (plain, sanitized), memory, verdicts)
    except KeyboardInterrupt:
        say(f"\nstopped after {len(verdicts)} of them")
    sys.exit(not report(verdicts, accepted))


if __name__ == "__main__":
    main()
