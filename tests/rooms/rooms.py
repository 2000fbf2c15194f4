#!/usr/bin/env python3
"""Whether the tree of sources is in order; from the project's root: rooms.py [RULE...]

The rules, of which those named are reported and do not make it fail:

- arrows: a room (a folder of staad/, tools/staadkit/ or tools/ with all below it) includes only the rooms that its
  row in the table of docs/architecture.md names.
- loops: neither files nor rooms include each other in a loop.
- public: the tool includes public headers of the library only: those that staad/CMakeLists.txt lists.
- short: a header and the source of its name have 40 lines together, or a reason in short_files.txt.
- ratio: there are at most 1.25 lines of test for a line of staad/ and tools/.
"""
import collections
import fnmatch
import pathlib
import re
import sys

FEWEST_LINES = 40
MOST_TEST_LINES = 1.25
TOOL = 'tools/staadkit'
SOURCES = ('.h', '.cpp')

complaints = []  # pairs of rule and message


def complain(rule, message):
    complaints.append((rule, message))


def files(*folders, suffixes=SOURCES):
    found = (path for folder in folders for path in pathlib.Path(folder).rglob('*') if path.suffix in suffixes)
    return sorted(path.as_posix() for path in found)


def text_of(path):
    return pathlib.Path(path).read_text(encoding='utf-8')


def included_by(path):
    """The files of this project that a file includes, by their paths from the root."""
    for name in re.findall(r'^\s*#\s*include "([^"]+)"', text_of(path), re.MULTILINE):
        beside = pathlib.Path(path).parent / name
        candidates = (name, beside.as_posix(), f'{TOOL}/{name}')
        found = next((each for each in candidates if pathlib.Path(each).is_file()), None)
        if found is None:
            complain('arrows', f'{path}: no file {name}')
        else:
            yield found


def room_of(path):
    """`text` for staad/text/lines.h, `reader` for staad/reader/blocks/x.cpp, `tools/cli` for tools/staadkit/cli/x.cpp.

    No room for what lies in no folder: the export macro, which all may include, and the tool's main program.
    """
    for top, prefix in (('staad/', ''), (TOOL + '/', 'tools/'), ('tools/', 'tools/')):
        if path.startswith(top):
            folder, slash, _ = path[len(top):].partition('/')
            return prefix + folder if slash else None
    return None


def listed_arrows():
    """From the table of docs/architecture.md: room to rooms that it may include."""
    rows = re.findall(r'^\| `([\w/]+)` \|([^|]*)\|', text_of('docs/architecture.md'), re.MULTILINE)
    return {room: set(re.findall(r'`([\w/]+)`', included)) for room, included in rows}


def check_arrows(arrows):
    listed = listed_arrows()
    for (start, end), (path, included) in sorted(arrows.items()):
        if end not in listed.get(start, ()):
            complain('arrows', f'{path} includes {included}: docs/architecture.md has no arrow from {start} to {end}')
    for start, ends in listed.items():
        for end in sorted(ends):
            if (start, end) not in arrows:
                complain('arrows', f'docs/architecture.md: no file of {start} includes one of {end}')
    for room in sorted({room for arrow in arrows for room in arrow} - listed.keys()):
        complain('arrows', f'docs/architecture.md: no row for {room}')


def loop(graph):
    """Nodes that lead back to the first of them, or nothing."""
    done = set()

    def search(node, way):
        if node in way:
            return way[way.index(node):] + [node]
        if node in done:
            return None
        for after in sorted(graph.get(node, ())):
            if found := search(after, way + [node]):
                return found
        done.add(node)
        return None

    return next((found for node in sorted(graph) if (found := search(node, []))), None)


def check_public_headers(graph):
    listed = re.search(r'set\(staadkit_public_headers(.*?)CACHE', text_of('staad/CMakeLists.txt'), re.DOTALL)[1]
    public = {'staad/' + name for name in re.findall(r'[\w/]+\.h', listed)}
    for path in files('tools'):
        for included in sorted(graph[path]):
            if included.startswith('staad/') and included not in public:
                complain('public', f'{path} includes {included}, which is private')


def is_forwarder(path):
    """An earlier name of a header: comments, the guard and includes."""
    return all(line.startswith(('#', '//')) or not line for line in text_of(path).splitlines())


def check_short_files():
    rows = (line.partition(': ') for line in text_of('tests/rooms/short_files.txt').splitlines())
    reasons = {pattern: reason for pattern, _, reason in rows if reason}
    lines = collections.Counter()
    parts = collections.defaultdict(list)
    for path in files('staad', 'tools'):
        stem = path.rsplit('.', 1)[0]
        lines[stem] += text_of(path).count('\n')
        parts[stem].append(path)
    answered = set()
    for stem, paths in sorted(parts.items()):
        if lines[stem] >= FEWEST_LINES or all(map(is_forwarder, paths)):
            continue
        patterns = {each for each in reasons for path in paths if fnmatch.fnmatch(path, each)}
        answered |= patterns
        if not patterns:
            names = ' and '.join(paths)
            complain('short', f'{names}: {lines[stem]} lines, and no reason in tests/rooms/short_files.txt')
    for pattern in sorted(reasons.keys() - answered):
        complain('short', f'tests/rooms/short_files.txt: nothing that is short is called {pattern}')


def check_ratio():
    count = lambda paths: sum(text_of(path).count('\n') for path in paths)
    tests = count(files('tests', suffixes=SOURCES + ('.sh', '.py')))
    code = count(files('staad', 'tools'))
    print(f'{tests} lines of test for {code} of code: {tests / code:.3f} a line')
    if tests > MOST_TEST_LINES * code:
        complain('ratio', f'more than {MOST_TEST_LINES} lines of test for a line of staad/ and tools/')


def main():
    graph = {path: set(included_by(path)) for path in files('staad', 'tools')}
    arrows, rooms = {}, collections.defaultdict(set)
    for path, included in graph.items():
        for each in sorted(included):
            start, end = room_of(path), room_of(each)
            if start and end and start != end:
                arrows.setdefault((start, end), (path, each))
                rooms[start].add(end)
    # From the tool into the library public headers are what counts: its table has no rows for these arrows.
    check_arrows({(start, end): via for (start, end), via in arrows.items()
                  if start.startswith('tools/') == end.startswith('tools/')})
    for what, each in (('files', graph), ('rooms', rooms)):
        if found := loop(each):
            complain('loops', f'a loop of {what}: ' + ' > '.join(found))
    check_public_headers(graph)
    check_short_files()
    check_ratio()
    for rule, message in complaints:
        print(f'{rule}: {message}')
    return 1 if {rule for rule, _ in complaints} - set(sys.argv[1:]) else 0


if __name__ == '__main__':
    sys.exit(main())
