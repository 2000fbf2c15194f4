#!/usr/bin/env python3
"""Whether each form of docs/forms.md is named by a row of the complete reading's tests; from the project's root.

A row names its form by a string literal that is the form's name and nothing more.
"""
import pathlib
import re
import sys

FOLDERS = ('tests/unit/deck', 'tests/unit/structure')
FEWEST_FORMS = 100  # fewer: the tables have not been found

forms = re.findall(r'^\| `([a-z0-9-]+)` \|', pathlib.Path('docs/forms.md').read_text(encoding='utf-8'), re.MULTILINE)
tests = [path.read_text(encoding='utf-8') for folder in FOLDERS for path in pathlib.Path(folder).glob('*.cpp')]
literals = {literal for test in tests for literal in re.findall(r'"((?:[^"\\\n]|\\.)*)"', test)}

complaints = [f'docs/forms.md: no test has a row for {form}' for form in forms if form not in literals]
complaints += [f'docs/forms.md: {form} stands twice' for form in sorted({each for each in forms if forms.count(each) > 1})]
if len(forms) < FEWEST_FORMS:
    complaints.append('docs/forms.md: no table of forms')
print('\n'.join(complaints) if complaints else f'{len(forms)} forms, each with a row')
sys.exit(1 if complaints else 0)
