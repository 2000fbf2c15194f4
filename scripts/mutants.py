"""What scripts/mutants does; see there."""

import argparse
import hashlib
import json
import os
import re
import resource
import shutil
import signal
import subprocess
import sys
import time
from collections import Counter, namedtuple
from pathlib import Path

FOLDER = Path("build/mutants").absolute()
JOBS = int(os.environ.get("JOBS", os.cpu_count() or 1))

# What to compile the library and the tests with: little optimised, as most of the time goes into compiling and linking.
FLAGS = "-O1 -g0 -DNDEBUG"

# Test programs below build/test/tests, in the order in which they find the most, with the portions that each is run in.
PROGRAMS = [
    ("staadkit_tests", 8),
    ("threads/staadkit_thread_tests", 1),
    ("cli/staadkit_cli_tests", 8),
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

# "[       OK ] Suite.Name/0 (1234 ms)" in what a program prints.
PASSED = re.compile(r"^\[       OK \] (\S+?),? .*\((\d+) ms\)$", re.M)
SLOW = 200  # ms: such tests come last

# "TEST_P(suite, " in a test file.
TEST = re.compile(r"^(?:TYPED_)?TEST(?:_F|_P)?\((\w+),", re.M)

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


def processor_time_of_programs():
    used = resource.getrusage(resource.RUSAGE_CHILDREN)
    return used.ru_utime + used.ru_stime


# ---- trees -----------------------------------------------------------------------------------------------------------


class Tree:
    """A copy of a tree with its build, in which one change at a time is made."""

    def __init__(self, folder):
        self.folder = folder
        self.build = folder / "build/test"
        self.objects = {}
        self.object_times = {}
        self.limits = {}
        self.slow = {}

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
        with open(self.folder / "build/build.log", "w") as log:
            command = ["ninja", "-C", self.build, "-j", str(JOBS), *targets]
            return subprocess.run(command, stdout=log, stderr=log, stdin=subprocess.DEVNULL).returncode == 0

    def configure(self):
        command = ["cmake", "--preset", "test", f"-DCMAKE_CXX_FLAGS_RELWITHDEBINFO={FLAGS}"]
        if shutil.which("ccache"):  # what stood before a change is compiled once
            command += ["-DCMAKE_CXX_COMPILER_LAUNCHER=ccache"]
            os.environ.update(CCACHE_BASEDIR=str(self.folder), CCACHE_NOHASHDIR="1")
            os.environ.update(CCACHE_SLOPPINESS="pch_defines,time_macros")
        if shutil.which("ld.lld"):
            command += ["-DCMAKE_EXE_LINKER_FLAGS=-fuse-ld=lld"]
        (self.folder / "build").mkdir(exist_ok=True)
        with open(self.folder / "build/configure.log", "w") as log:
            if subprocess.run(command, cwd=self.folder, stdout=log, stderr=log).returncode != 0:
                sys.exit(f"mutants: cannot configure, see {log.name}")
        if not self.ninja("staadkit"):
            sys.exit(f"mutants: cannot build, see {self.folder}/build/build.log")
        self.has_new_code()

    def has_new_code(self):
        """Whether the library's code differs from what it was when first asked; line numbers do not count."""
        is_new = False
        for path in (self.build / "staad").rglob("*.o"):
            changed = path.stat().st_mtime_ns
            if self.object_times.get(path) == changed:
                continue
            self.object_times[path] = changed
            stripped = self.folder / "build/stripped.o"
            subprocess.run(["strip", "--strip-debug", "-o", stripped, path], check=True)
            digest = hashlib.sha256(stripped.read_bytes()).digest()
            is_new |= self.objects.setdefault(path, digest) != digest
        return is_new

    def programs(self):
        return [(name, portions) for name, portions in PROGRAMS if (self.build / "tests" / name).parent.exists()]

    def check_suite(self):
        """The suite without a change: all of it must pass; sets how long a program may take and which tests are slow.
        Kept for the next time, as it takes minutes."""
        paths = sorted(path for room in ("staad", "tools", "tests") for path in (self.folder / room).rglob("*.*"))
        memory = self.folder / "build/suite.json"
        known = json.loads(memory.read_text()) if memory.exists() else {}
        known_as = digest([(str(path), path.read_text(errors="replace")) for path in paths if path.is_file()])
        if known.get("tree") == known_as:
            self.limits, self.slow = known["limits"], known["slow"]
            return
        for name, portions in self.programs():
            print(f"building and running {name} without a change", file=sys.stderr, flush=True)
            if not self.ninja(Path(name).name):
                sys.exit(f"mutants: cannot build {name}, see {self.folder}/build/build.log")
            began = processor_time_of_programs()
            failure = self.failure(name, portions, 3600, brief=0)
            if failure:
                sys.exit(f"mutants: {name} fails without any change ({failure}), see {self.folder}/build/test.log")
            self.limits[name] = 20 + 4 * (processor_time_of_programs() - began) / portions
            times = PASSED.findall((self.folder / "build/test.log").read_text(errors="replace"))
            self.slow[name] = ":".join(sorted(test for test, time in times if int(time) >= SLOW))
        memory.write_text(json.dumps({"tree": known_as, "limits": self.limits, "slow": self.slow}))

    def failure(self, name, portions, limit, tests="*", brief=1):
        """Runs a program in portions, side by side, until one fails or takes more processor time than `limit`, so that
        a busy machine fails nothing. A program that waits without end is given ten times as long. The first test that
        failed, or what became of the program; empty if all pass."""
        patience = 10 * limit  # counted in steps: while this script is itself stopped no time passes
        options = [f"--gtest_filter={tests}", f"--gtest_brief={brief}"]
        waiting = list(range(portions))
        running = []
        failed = None
        with open(self.folder / "build/test.log", "w") as log:
            while failed is None and (waiting or running):
                while waiting and len(running) < JOBS:
                    running.append(self.start(name, waiting.pop(0), portions, limit, options, log))
                time.sleep(0.02)
                patience -= 0.02
                for process in [process for process in running if process.poll() is not None]:
                    running.remove(process)
                    failed = process.returncode if process.returncode != 0 and failed is None else failed
                failed = -signal.SIGALRM if failed is None and patience < 0 else failed
            for process in running:
                os.killpg(process.pid, signal.SIGKILL)
                process.wait()
        if failed is None:
            return ""
        found = re.search(r"^\[  FAILED  \] ([\w/]+\.[\w/]+)", Path(log.name).read_text(errors="replace"), re.M)
        return found[1] if found else signal.Signals(-failed).name if failed < 0 else f"end with {failed}"

    def start(self, name, portion, portions, limit, options, log):
        def bound():  # a loop without end is not to take the machine's memory
            resource.setrlimit(resource.RLIMIT_AS, (4 << 30, 4 << 30))
            resource.setrlimit(resource.RLIMIT_CPU, (int(limit), int(limit) + 5))

        environment = dict(os.environ, GTEST_TOTAL_SHARDS=str(portions), GTEST_SHARD_INDEX=str(portion))
        environment.pop("STAADKIT_REAL_FILES", None)
        program = self.build / "tests" / name
        return subprocess.Popen(
            [program, "--gtest_fail_fast", *options], cwd=program.parent, stdin=subprocess.DEVNULL,
            stdout=log, stderr=log, env=environment, start_new_session=True, preexec_fn=bound,
        )  # fmt: skip

    def tests_of(self, path):
        """The tests of the room that a file of staad/ lies in, as GoogleTest filters them; empty if it has none."""
        room = Path(path).parts[1]
        sources = [source.read_text() for source in sorted((self.folder / "tests/unit" / room).rglob("*.cpp"))]
        suites = sorted({suite for source in sources for suite in TEST.findall(source)})
        return ":".join(f"{suite}.*:*/{suite}.*:{suite}/*.*" for suite in suites)

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

    def catcher(self, path):
        """With a change in a file: what notices it; empty if nothing does. The tests of its room run first, slow ones
        last."""
        for name, portions in self.programs():
            if not self.ninja(Path(name).name):
                return f"the compiler of {Path(name).name}"
            near = self.tests_of(path) if name == "staadkit_tests" else ""
            slow = self.slow[name]
            stages = [(f"{near}-{slow}", JOBS)] if near else []
            stages += [(f"-{near}:{slow}", JOBS)]
            stages += [(slow, portions)] if slow else []
            for tests, parts in stages:
                failure = self.failure(name, parts, self.limits[name], tests)
                if failure:
                    return f"{Path(name).name}, {failure}"
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


def digest(*parts):
    return hashlib.sha256(json.dumps(parts).encode()).hexdigest()


def draw(tree, seed, count):
    """The changes of a seed. Each line has its own chance, so that the others stay where one is edited. What compiles
    to new code is kept for the next time."""
    sources = tree.sources()
    memory = FOLDER / "kinds.json"
    kinds = json.loads(memory.read_text()) if memory.exists() else {}
    if kinds.get("tree") != digest(sources):
        kinds = {"tree": digest(sources)}
    drawn = []
    for path, source in sources.items():
        seen = Counter()  # lines of one text
        for place in places_in(path, source):
            mutant = mutant_of(place, "", source)
            seen[mutant.text, mutant.column] += 1
            chance = digest(seed, path, mutant.text, mutant.column, place.old, seen[mutant.text, mutant.column])
            drawn.append((chance, mutant._replace(new=place.choices[int(chance, 16) % len(place.choices)])))
    mutants = []
    for _, mutant in sorted(drawn):
        if len(mutants) == count:
            break
        key = f"{mutant.path} {mutant.line} {mutant.column} {mutant.new}"
        if key not in kinds:
            if not tree.objects:
                print("drawing changes that compile to new code", file=sys.stderr, flush=True)
                tree.configure()
            kinds[key] = tree.with_change(mutant, tree.kind)
            memory.write_text(json.dumps(kinds))
        if kinds[key] == "new":
            mutants.append(mutant)
    return mutants


def run(tree, mutants, only, drawn_from):
    """Makes each change in the tree, or `only` those of some positions, and reports what became of it. `drawn_from`:
    the sources of another tree in which the changes were drawn; None if it was this one."""
    tree.configure()
    tree.check_suite()
    sources = tree.sources()
    caught, survivors, lacking = 0, [], []
    for index, drawn in enumerate(mutants, 1):
        if only and index not in only:
            continue
        began = time.monotonic()
        mutant = tree.found_here(drawn, drawn_from[drawn.path], sources) if drawn_from else drawn
        kind = tree.with_change(mutant, tree.kind) if mutant and drawn_from else "new"
        if mutant is None or kind != "new":
            outcome = "no such line" if mutant is None else {"same": "same code", "broken": "does not compile"}[kind]
            lacking.append(drawn)
        else:
            catcher = tree.with_change(mutant, lambda: tree.catcher(mutant.path))
            outcome = f"caught by {catcher}" if catcher else "SURVIVED"
            caught += bool(catcher)
            survivors += [] if catcher else [mutant]
        print(f"{index:3} {time.monotonic() - began:3.0f} s, {outcome}: {line_of(mutant or drawn)}", flush=True)
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
    parser.add_argument("--only", metavar="N,N...", help="of the changes, those at these positions")
    parser.add_argument("--at-least", metavar="N", type=int, default=0, help="end with 1 if fewer are caught")
    options = parser.parse_args()
    os.nice(10)
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
    only = {int(position) for position in options.only.split(",")} if options.only else set()
    if run(tree, mutants, only, drawn_from) < options.at_least:
        sys.exit(1)


main()
