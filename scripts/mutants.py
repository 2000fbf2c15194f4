"""What scripts/mutants does; see there."""

import argparse
import hashlib
import json
import os
import random
import re
import resource
import shutil
import signal
import subprocess
import sys
import time
from collections import namedtuple
from pathlib import Path

FOLDER = Path("build/mutants").absolute()
JOBS = os.cpu_count() or 1

# Test programs below build/test/tests, the fastest first, with the portions that each is run in.
PROGRAMS = [
    ("threads/staadkit_thread_tests", 1),
    ("staadkit_tests", 8),
    ("cli/staadkit_cli_tests", 4),
    ("exhaustion/staadkit_exhaustion_tests", 4),
]

# ---- changes ---------------------------------------------------------------------------------------------------------

# Operators count only with blanks around them: without, they are signs, pointers or brackets of templates.
BETWEEN_BLANKS = {
    "<": "<=", "<=": "<", ">": ">=", ">=": ">", "==": "!=", "!=": "==", "&&": "||", "||": "&&", "+": "-", "-": "+",
    "*": "/", "/": "*", "%": "*", "+=": "-=", "-=": "+=", "*=": "/=", "/=": "*=",
}  # fmt: skip
ANYWHERE = {"++": "--", "--": "++", "!": ""}
WORDS = {
    "true": "false", "false": "true", "break": "continue", "continue": "break", "min": "max", "max": "min",
    "front": "back", "back": "front", "lower_bound": "upper_bound", "upper_bound": "lower_bound",
}  # fmt: skip
MEMBERS = {"first": "second", "second": "first", "x": "y", "y": "z", "z": "x"}  # after a "."

TOKEN = re.compile(
    r"""(?P<none> //[^\n]* | /\*.*?\*/ | ^[ \t]*\#(?:\\\n|[^\n])* |
                  R"(?P<mark>[^(\s]*)\(.*?\)(?P=mark)" | "(?:\\.|[^"\\\n])*" | '(?:\\.|[^'\\\n])+' )
      | (?P<number> \.?\d(?:[eEpP][-+]|'\w|[\w.])* )
      | (?P<word> [A-Za-z_]\w* )
      | (?P<operator> <=>|<<=|>>=|->|\+\+|--|&&|\|\||[-+*/%<>=!&|^]=|<<|>>|::|\S )""",
    re.VERBOSE | re.MULTILINE | re.DOTALL,
)
# A call that is a line and a statement: "names.push_back(name);", but no declaration.
CALL = re.compile(r"^[ \t]+(?P<call>(?!return\b|if\b|while\b|for\b|switch\b)[\w:.\[\]>*-]+\((?:.*\))?[^;{}]*\);)$", re.M)

# A token in a file of the tree and what may stand in its place.
Place = namedtuple("Place", "path offset old choices")
Mutant = namedtuple("Mutant", "path line text column old new")


def choices_for(match, source):
    token = match.group()
    if match.lastgroup == "number":
        number = re.fullmatch(r"(\d[\d']*)([uUlLzZ]*)", token)
        if not number or (token[0] == "0" and len(number[1]) > 1):
            return []
        value = int(number[1].replace("'", ""))
        return [f"{changed}{number[2]}" for changed in (value + 1, value - 1) if changed >= 0]
    if match.lastgroup == "word":
        before = source[match.start() - 1 : match.start()]
        return [table[token] for table in (WORDS, MEMBERS if before == "." else {}) if token in table]
    if token in ANYWHERE:
        return [ANYWHERE[token]]
    around = source[match.start() - 2 : match.start()] + source[match.end() : match.end() + 2]
    is_between_blanks = len(around) == 4 and around[1:3].isspace() and '"' not in around  # texts have "+" alone
    return [BETWEEN_BLANKS[token]] if token in BETWEEN_BLANKS and is_between_blanks else []


def places_in(path, source):
    found = []
    code = list(source)  # comments and texts blanked out
    for match in TOKEN.finditer(source):
        if match.lastgroup == "none" or match["none"]:
            for at in range(*match.span()):
                code[at] = code[at] if code[at] == "\n" else "~"
            continue
        choices = choices_for(match, source)
        if choices:
            found.append(Place(path, match.start(), match.group(), choices))
    for match in CALL.finditer("".join(code)):
        call = source[slice(*match.span("call"))]
        found.append(Place(path, match.start("call"), call, [";"]))
    return sorted(found)


def mutant_of(place, choice, source):
    start = source.rfind("\n", 0, place.offset) + 1
    text = source[start : source.find("\n", start)]
    return Mutant(place.path, source.count("\n", 0, start) + 1, text, place.offset - start, place.old, choice)


def line_of(mutant):
    return f"{mutant.path}:{mutant.line}: {mutant.old} -> {mutant.new or 'nothing'}   | {mutant.text.strip()}"


# ---- trees -----------------------------------------------------------------------------------------------------------


class Tree:
    """A copy of a tree with its build, in which one change at a time is made."""

    def __init__(self, folder):
        self.folder = folder
        self.build = folder / "build/test"
        self.objects = {}
        self.object_times = {}
        self.limits = {}

    def copy_working_tree(self):
        names = subprocess.run(["git", "ls-files", "-coz", "--exclude-standard"], check=True, capture_output=True)
        wanted = {name for name in names.stdout.decode().split("\0") if name and Path(name).is_file()}
        for name in sorted(wanted):
            target = self.folder / name
            content = Path(name).read_bytes()
            if not target.exists() or target.read_bytes() != content:
                target.parent.mkdir(parents=True, exist_ok=True)
                target.write_bytes(content)
                shutil.copymode(name, target)
        for path in list(self.folder.rglob("*")):
            name = path.relative_to(self.folder)
            if name.parts[0] != "build" and path.is_file() and str(name) not in wanted:
                path.unlink()

    def copy_commit(self, commit):
        shutil.rmtree(self.folder / "staad", ignore_errors=True)  # an interrupted run may have left a change there
        self.folder.mkdir(parents=True, exist_ok=True)
        archive = subprocess.run(["git", "archive", commit], check=True, capture_output=True)
        subprocess.run(["tar", "-xm", "-C", self.folder], input=archive.stdout, check=True)

    def sources(self):
        paths = sorted(path for path in (self.folder / "staad").rglob("*") if path.suffix in (".cpp", ".h"))
        return {str(path.relative_to(self.folder)): path.read_text() for path in paths}

    def ninja(self, *targets):
        with open(FOLDER / "build.log", "w") as log:
            command = ["ninja", "-C", self.build, "-j", str(JOBS), *targets]
            return subprocess.run(command, stdout=log, stderr=log, stdin=subprocess.DEVNULL).returncode == 0

    def configure(self):
        command = ["cmake", "--preset", "test"]
        if shutil.which("ccache"):
            command += ["-DCMAKE_CXX_COMPILER_LAUNCHER=ccache", "-DCMAKE_DISABLE_PRECOMPILE_HEADERS=ON"]
            os.environ.update(CCACHE_BASEDIR=str(self.folder), CCACHE_NOHASHDIR="1")
        with open(FOLDER / "configure.log", "w") as log:
            if subprocess.run(command, cwd=self.folder, stdout=log, stderr=log).returncode != 0:
                sys.exit(f"mutants: cannot configure, see {log.name}")
        if not self.ninja("staadkit"):
            sys.exit(f"mutants: cannot build, see {FOLDER}/build.log")
        self.has_new_code()

    def has_new_code(self):
        """Whether the library's code differs from what it was when first asked; line numbers do not count."""
        is_new = False
        for path in (self.build / "staad").rglob("*.o"):
            changed = path.stat().st_mtime_ns
            if self.object_times.get(path) == changed:
                continue
            self.object_times[path] = changed
            stripped = FOLDER / "stripped.o"
            subprocess.run(["strip", "--strip-debug", "-o", stripped, path], check=True)
            digest = hashlib.sha256(stripped.read_bytes()).digest()
            is_new |= self.objects.setdefault(path, digest) != digest
        return is_new

    def programs(self):
        return [(name, portions) for name, portions in PROGRAMS if (self.build / "tests" / name).parent.exists()]

    def check_suite(self):
        """The suite without a change: all of it must pass; sets how long a program may take."""
        for name, portions in self.programs():
            print(f"building and running {name} without a change", file=sys.stderr, flush=True)
            if not self.ninja(Path(name).name):
                sys.exit(f"mutants: cannot build {name}, see {FOLDER}/build.log")
            began = time.monotonic()
            if not self.passes(name, portions, 3600):
                sys.exit(f"mutants: {name} fails without any change, see {FOLDER}/test.log")
            self.limits[name] = 60 + 5 * (time.monotonic() - began)

    def passes(self, name, portions, limit):
        """Runs a program in portions, side by side, until one fails or takes too long."""
        end = time.monotonic() + limit
        waiting = list(range(portions))
        running = []
        passed = True
        with open(FOLDER / "test.log", "w") as log:
            while passed and (waiting or running):
                while waiting and len(running) < JOBS:
                    running.append(self.start(name, waiting.pop(0), portions, log))
                time.sleep(0.05)
                for process in [process for process in running if process.poll() is not None]:
                    running.remove(process)
                    passed = passed and process.returncode == 0
                passed = passed and time.monotonic() < end
            for process in running:
                os.killpg(process.pid, signal.SIGKILL)
                process.wait()
        return passed

    def start(self, name, portion, portions, log):
        def bound_memory():  # a loop without end is not to take the machine's
            resource.setrlimit(resource.RLIMIT_AS, (4 << 30, 4 << 30))

        environment = dict(os.environ, GTEST_TOTAL_SHARDS=str(portions), GTEST_SHARD_INDEX=str(portion))
        environment.pop("STAADKIT_REAL_FILES", None)
        program = self.build / "tests" / name
        return subprocess.Popen(
            [program, "--gtest_brief=1", "--gtest_fail_fast"], cwd=program.parent, stdin=subprocess.DEVNULL,
            stdout=log, stderr=log, env=environment, start_new_session=True, preexec_fn=bound_memory,
        )  # fmt: skip

    def with_change(self, mutant, action):
        """What `action` gives while the change stands in the tree."""
        path = self.folder / mutant.path
        source = path.read_text()
        lines = source.split("\n")
        text = lines[mutant.line - 1]
        lines[mutant.line - 1] = text[: mutant.column] + mutant.new + text[mutant.column + len(mutant.old) :]
        path.write_text("\n".join(lines))
        try:
            return action()
        finally:
            path.write_text(source)

    def kind(self):
        """With a change: "new", "same" code or "broken"."""
        if not self.ninja("staadkit"):
            return "broken"
        return "new" if self.has_new_code() else "same"

    def catcher(self):
        """With a change: the program that notices it; empty if none does."""
        for name, portions in self.programs():
            if not self.ninja(Path(name).name) or not self.passes(name, portions, self.limits[name]):
                return Path(name).name
        return ""

    def found_here(self, mutant, drawn_source, sources):
        """The same change in this tree; None if its line is not here. Of lines of one text, that between most of the
        same lines; of equals none."""
        same_name = [path for path in sources if Path(path).name == Path(mutant.path).name]
        for paths in ([mutant.path] if mutant.path in sources else [], same_name, list(sources)):
            found = [
                (lines_in_common(drawn_source, mutant.line, sources[path], number), path, number)
                for path in paths
                for number, line in enumerate(sources[path].split("\n"), 1)
                if line.strip() == mutant.text.strip()
            ]
            found.sort(reverse=True)
            if len(found) == 1 or (found and found[0][0] > found[1][0]):
                _, path, number = found[0]
                text = sources[path].split("\n")[number - 1]
                shift = len(text) - len(text.lstrip()) - (len(mutant.text) - len(mutant.text.lstrip()))
                return mutant._replace(path=path, line=number, text=text, column=mutant.column + shift)
        return None


def lines_in_common(first, first_line, second, second_line, reach=8):
    """Of the lines around one line of each text, how many are in both."""
    around = [
        {line.strip() for line in text.split("\n")[max(0, number - 1 - reach) : number + reach]} - {"", "{", "}"}
        for text, number in ((first, first_line), (second, second_line))
    ]
    return len(around[0] & around[1])


def draw(tree, seed, count):
    """The changes of a seed. What compiles to new code is kept for the next time."""
    sources = tree.sources()
    tree_digest = hashlib.sha256(json.dumps(sources).encode()).hexdigest()
    memory = FOLDER / "kinds.json"
    kinds = json.loads(memory.read_text()) if memory.exists() else {}
    if kinds.get("tree") != tree_digest:
        kinds = {"tree": tree_digest}
    places = [place for path, source in sources.items() for place in places_in(path, source)]
    chance = random.Random(seed)
    chance.shuffle(places)
    mutants = []
    for place in places:
        if len(mutants) == count:
            break
        mutant = mutant_of(place, chance.choice(place.choices), sources[place.path])
        key = f"{place.path} {place.offset} {mutant.new}"
        if key not in kinds:
            if not tree.objects:
                print("drawing changes that compile to new code", file=sys.stderr, flush=True)
                tree.configure()
            kinds[key] = tree.with_change(mutant, tree.kind)
            memory.write_text(json.dumps(kinds))
        if kinds[key] == "new":
            mutants.append(mutant)
    return mutants


def run(tree, mutants, drawn_from):
    """Makes each change in the tree and reports what became of it. `drawn_from`: the sources of another tree in which
    the changes were drawn; None if it was this one."""
    tree.configure()
    tree.check_suite()
    sources = tree.sources()
    caught, survivors, lacking = 0, [], []
    for index, drawn in enumerate(mutants, 1):
        mutant = tree.found_here(drawn, drawn_from[drawn.path], sources) if drawn_from else drawn
        kind = tree.with_change(mutant, tree.kind) if mutant and drawn_from else "new"
        if mutant is None or kind != "new":
            outcome = "no such line" if mutant is None else {"same": "same code", "broken": "does not compile"}[kind]
            lacking.append(drawn)
        else:
            program = tree.with_change(mutant, tree.catcher)
            outcome = f"caught by {program}" if program else "SURVIVED"
            caught += bool(program)
            survivors += [] if program else [mutant]
        print(f"{index:3} {outcome}: {line_of(mutant or drawn)}", flush=True)
    print(f"{caught} of {caught + len(survivors)} caught" + (f", {len(lacking)} not applicable" if lacking else ""))
    for mutant in survivors:
        print(f"survived: {line_of(mutant)}")
    return caught


def main():
    parser = argparse.ArgumentParser(prog="scripts/mutants")
    parser.add_argument("seed", type=int)
    parser.add_argument("count", type=int)
    parser.add_argument("--list", action="store_true", help="only print the changes")
    parser.add_argument("--at", metavar="COMMIT", help="make the same changes in that commit's tree")
    parser.add_argument("--at-least", metavar="N", type=int, default=0, help="end with 1 if fewer are caught")
    options = parser.parse_args()
    os.nice(5)
    tree = Tree(FOLDER / "tree")
    tree.copy_working_tree()
    mutants = draw(tree, options.seed, options.count)
    if options.list:
        print("\n".join(line_of(mutant) for mutant in mutants))
        return
    drawn_from = None
    if options.at:
        drawn_from = tree.sources()
        commit = subprocess.run(["git", "rev-parse", "--verify", "-q", options.at + "^{commit}"], capture_output=True)
        if commit.returncode != 0:
            sys.exit(f"mutants: no commit {options.at}")
        name = commit.stdout.decode().strip()
        tree = Tree(FOLDER / name)
        tree.copy_commit(name)
    if run(tree, mutants, drawn_from) < options.at_least:
        sys.exit(1)


main()
