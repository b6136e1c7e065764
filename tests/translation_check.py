#!/usr/bin/env python3
"""The words of the translations, checked against the pages that show them.

    translation_check.py CATALOGUE_JSON TRANSLATIONS_DIR

For every translations/carcontrol_*.ts, with the exported catalogue (every
page's rows, their titles and options):

- alike: a short source text (one or two words) that one translation
  covers in rows of different kinds. "light" translated 亮 both among the
  car's functions (headlights, width lights, ...) and among the levels of
  energy recovery (light, middle, powerful) is one word with two meanings
  and one translation. Two uses are of one kind when both are row titles,
  or both options of rows that share another option. What a person has
  looked at and kept is listed in translations/alike-kept.txt, with both
  translations and the reason;
- units: currents as 10A, minutes as 分钟 or 1分30秒 (a bare "5m" among
  seconds reads as five metres), Chinese in full-width brackets;
- Latin words: only those that the glossary keeps (its "Kept:" line).

It lists what it finds and fails; it changes nothing.
"""

import json
import re
import sys
import xml.etree.ElementTree as ET
from collections import defaultdict
from pathlib import Path

CJK = '\u3400-\u9fff'
MINUTES = ('分钟', '分鐘')


def read_ts(path):
    """{(context, source): translation} of the finished messages."""
    messages = {}
    for context in ET.parse(path).getroot().iter('context'):
        name = context.findtext('name')
        for message in context.iter('message'):
            translation = message.find('translation')
            if translation.get('type') in ('obsolete', 'vanished', 'unfinished'):
                continue
            messages[(name, message.findtext('source'))] = translation.text or ''
    return messages


def read_kept_words(glossary):
    for line in glossary.read_text(encoding='utf-8').splitlines():
        if line.startswith('Kept: '):
            return {word.strip() for word in line[len('Kept: '):].split(',')}
    sys.exit('translation_check: no "Kept:" line in ' + str(glossary))


def read_alike_kept(path):
    """{(source, translation)} looked at and kept, from lines
    "source | translation | translation ... | why"."""
    kept = set()
    for line in path.read_text(encoding='utf-8').splitlines():
        if not line.strip() or line.startswith('#'):
            continue
        cells = [cell.strip() for cell in line.split('|')]
        if len(cells) < 3 or not cells[-1]:
            sys.exit('translation_check: %s: "source | translation | ... | why" expected: %s' % (path, line))
        kept.update((cells[0], translation) for translation in cells[1:-1])
    return kept


class Use:
    """A text as one row shows it: its page's class, and whether it is the
    row's title or one of its options (with the row's other options)."""

    def __init__(self, context, title, siblings, row=''):
        self.context = context
        self.title = title
        self.siblings = siblings
        self.row = row

    def same_kind(self, other):
        if self.title or other.title:
            return self.title and other.title
        # Rows of a single option (a lamp of the energy flow that is lit or
        # not) are of one kind.
        if not self.siblings and not other.siblings:
            return True
        return bool(self.siblings & other.siblings)


def read_uses(catalogue):
    """{source text: [Use]} for every row title and text option."""
    uses = defaultdict(list)
    for family in catalogue['families']:
        for page in family['pages']:
            context = page['class']
            for row in page['rows']:
                options = [o for o in row.get('options', []) if isinstance(o, str)]
                uses[row['title']].append(Use(context, True, frozenset()))
                for option in options:
                    siblings = frozenset(o.lower() for o in options if o != option)
                    uses[option].append(Use(context, False, siblings, row['title']))
    return uses


def kinds(uses):
    """The uses in groups of one kind (joined where any two share it)."""
    groups = []
    for use in uses:
        joined = [g for g in groups if any(use.same_kind(u) for u in g)]
        merged = [use] + [u for g in joined for u in g]
        groups = [g for g in groups if g not in joined] + [merged]
    return groups


def alike(messages, uses, kept):
    faults = []
    for source, its_uses in sorted(uses.items()):
        if not source or len(source.split()) > 2:
            continue
        by_translation = defaultdict(list)
        for use in its_uses:
            translation = messages.get((use.context, source))
            if translation is not None and translation != source:
                by_translation[translation].append(use)
        for translation, shared in sorted(by_translation.items()):
            groups = kinds(shared)
            if len(groups) < 2 or (source, translation) in kept:
                continue
            where = '; '.join(
                '%s (%s)' % (', '.join(sorted({u.context.replace('CarInfoItem', '') for u in g})),
                             'title' if g[0].title else 'option beside ' + ', '.join(sorted(g[0].siblings))[:60])
                for g in groups)
            faults.append('alike: "%s" is %s in rows of %d kinds: %s' % (source, translation, len(groups), where))
    return faults


def units(messages, uses):
    faults = []
    # "5m" is minutes in a row of times: beside seconds, or titled a time.
    minute_options = set()
    for source, its_uses in uses.items():
        if re.fullmatch(r'\d+m', source):
            for use in its_uses:
                if any(re.fullmatch(r'\d+s|\d+ ?min.*', s) for s in use.siblings) \
                        or re.search(r'\b(time|delay|duration|timer)\b', use.row, re.I):
                    minute_options.add((use.context, source))
    for (context, source), translation in sorted(messages.items()):
        where = '%s "%s" is %s' % (context, source, translation)
        if re.fullmatch(r'\d+ ?amps?', source, re.I) and not re.fullmatch(r'\d+A', translation):
            faults.append('units: %s, a current is written 10A' % where)
        if ((context, source) in minute_options or re.search(r'\d ?(min|minutes?)\b', source, re.I)) \
                and not any(word in translation for word in MINUTES) \
                and not re.search(r'\d分\d+秒', translation):
            faults.append('units: %s, minutes are written 分钟' % where)
        if re.search(r'\([^()]*[%s][^()]*\)' % CJK, translation):
            faults.append('brackets: %s, Chinese goes in full-width brackets （）' % where)
    return faults


def latin(messages, kept_words):
    faults = []
    for (context, source), translation in sorted(messages.items()):
        for word in re.findall(r'[A-Za-z]{2,}', translation):
            if word not in kept_words:
                faults.append('latin: %s "%s" is %s: "%s" is not a word the glossary keeps'
                              % (context, source, translation, word))
    return faults


def main():
    catalogue = json.loads(Path(sys.argv[1]).read_text(encoding='utf-8'))
    directory = Path(sys.argv[2])
    uses = read_uses(catalogue)
    kept_words = read_kept_words(directory / 'glossary.md')
    kept_alike = read_alike_kept(directory / 'alike-kept.txt')
    failed = False
    for path in sorted(directory.glob('carcontrol_*.ts')):
        messages = read_ts(path)
        faults = alike(messages, uses, kept_alike) + units(messages, uses) + latin(messages, kept_words)
        print('%s: %d messages, %d faults' % (path.name, len(messages), len(faults)))
        for fault in faults:
            print('  ' + fault)
        failed = failed or bool(faults)
    return 1 if failed else 0


if __name__ == '__main__':
    sys.exit(main())
