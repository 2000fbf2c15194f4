#!/usr/bin/env python3
"""Whether what `staadkit dump --form structure` prints is what docs/structure.schema.json says.

structure_schema.py TOOL, from the project's root. The examples by both readings, and every-form.std beside this file,
which has each word that the schema knows for a kind of record: one that it lacks shows in no document.
"""
import json
import pathlib
import subprocess
import sys

import jsonschema

HERE = pathlib.Path(__file__).parent
EVERY_FORM = HERE / 'every-form.std'


def dump(tool, deck, reading):
    call = [tool, 'dump', '--form', 'structure', '--reading', reading, str(deck)]
    return json.loads(subprocess.run(call, check=True, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL).stdout)


def words_of(record, key):
    """All texts that stand under a key in records of a list."""
    if isinstance(record, list):
        return {word for each in record for word in words_of(each, key)}
    if not isinstance(record, dict):
        return set()
    below = {word for value in record.values() for word in words_of(value, key)}
    return below | ({record[key]} if isinstance(record.get(key), str) else set())


def missing_words(schema, document):
    """Words of the schema that the document of every form does not show."""
    places = {'section': 'sections', 'member': 'members', 'group': 'groups', 'load': 'load_cases', 'plate': 'elements',
              'solid': 'elements', 'surface': 'elements', 'user_table': 'sections', 'support': 'supports',
              'mat': 'supports'}
    for name, place in places.items():
        for key, rule in schema['$defs'][name]['properties'].items():
            wanted = set(rule.get('enum', [rule['const']] if 'const' in rule else []))
            for word in sorted(wanted - words_of(document[place], key)):
                yield f'{EVERY_FORM.name}: no {name} whose {key} is "{word}"'
    yield from (f'{EVERY_FORM.name}: no {key}' for key in schema['properties'] if not document[key])


def main():
    tool = sys.argv[1]
    schema = json.loads(pathlib.Path('docs/structure.schema.json').read_text(encoding='utf-8'))
    jsonschema.Draft202012Validator.check_schema(schema)
    validator = jsonschema.Draft202012Validator(schema)
    decks = sorted(pathlib.Path('examples').glob('*.std')) + [EVERY_FORM]
    complaints = []
    for deck in decks:
        for reading in ('host', 'complete'):
            for error in validator.iter_errors(dump(tool, deck, reading)):
                complaints.append(f'{deck}, {reading} reading: {list(error.absolute_path)}: {error.message[:300]}')
    complaints += missing_words(schema, dump(tool, EVERY_FORM, 'complete'))
    wrong = dump(tool, EVERY_FORM, 'complete')
    wrong['members'][0]['start'] = 'one'
    if validator.is_valid(wrong):
        complaints.append('a word in the place of a number of a joint is valid')
    print(*complaints, sep='\n')
    sys.exit(1 if complaints or not decks else 0)


main()
