#!/usr/bin/env python3
"""translation_check.py finds the faults it looks for, each in its place,
and passes what is right: a small catalogue and translation made here, with
one page per kind of row."""

import json
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

CHECK = Path(__file__).resolve().parent / 'translation_check.py'

# Two families' rows: "light" among the car's functions and among the levels
# of recovery; a check box's states; the take-me-home times in seconds and
# minutes; a charging current; a title with brackets.
CATALOGUE = {'families': [{'pages': [
    {'class': 'CarInfoItem1_1', 'rows': [
        {'title': 'Function recognition', 'options': ['width light', 'high beam', 'light']},
        {'title': 'Monday', 'options': ['Cancel', 'Check']},
        {'title': 'Medium', 'options': [0, 9]},
    ]},
    {'class': 'CarInfoItem1_2', 'rows': [
        {'title': 'Energy recovery class', 'options': ['light', 'middle', 'powerful']},
        {'title': 'Take me home', 'options': ['30s', '1m', '5m']},
        {'title': 'Indoor lamp time', 'options': ['10m', '15m']},
        {'title': 'Current', 'options': ['6 amp', '10A']},
        {'title': 'Departure hour', 'options': [0, 23]},
        {'title': 'Bass', 'options': ['Low', 'Medium']},
        {'title': 'Drive mode', 'options': ['COMFORT', 'ECO']},
    ]},
    {'class': 'CarInfoItem1_3', 'rows': [
        {'title': 'Function recognition', 'options': ['width light', 'light', 'fog light']},
    ]},
]}]}

RIGHT = {
    'CarInfoItem1_1': {'Function recognition': '功能识别', 'width light': '示宽灯', 'high beam': '远光灯',
                       'light': '灯光', 'Monday': '星期一', 'Cancel': '未选', 'Check': '已选', 'Medium': '中音'},
    'CarInfoItem1_2': {'Energy recovery class': '能量回收等级', 'light': '弱', 'middle': '中', 'powerful': '强',
                       'Take me home': '伴我回家', '30s': '30s', '1m': '1分钟', '5m': '5分钟',
                       'Indoor lamp time': '室内灯时间', '10m': '10分钟', '15m': '15分钟', 'Current': '电流', '6 amp': '6A', '10A': '10A', 'Departure hour': '出发时间（时）',
                       'Bass': '低音', 'Low': '低', 'Medium': '中', 'Drive mode': '驾驶模式',
                       'COMFORT': '舒适', 'ECO': 'ECO'},
    'CarInfoItem1_3': {'Function recognition': '功能识别', 'width light': '示宽灯', 'light': '灯光',
                       'fog light': '雾灯'},
}

GLOSSARY = '# Glossary\n\nKept: ECO, km\n'


def ts(contexts):
    lines = ['<?xml version="1.0" encoding="utf-8"?>', '<!DOCTYPE TS>', '<TS version="2.1" language="zh_CN">']
    for name, messages in contexts.items():
        lines += ['<context>', '    <name>%s</name>' % name]
        for source, translation in messages.items():
            lines += ['    <message>', '        <source>%s</source>' % source,
                      '        <translation>%s</translation>' % translation, '    </message>']
        lines.append('</context>')
    lines.append('</TS>')
    return '\n'.join(lines) + '\n'


def with_changes(changes):
    contexts = {name: dict(messages) for name, messages in RIGHT.items()}
    for (context, source), translation in changes.items():
        contexts[context][source] = translation
    return contexts


class TranslationCheckTest(unittest.TestCase):
    def run_check(self, contexts, kept=''):
        with tempfile.TemporaryDirectory() as directory:
            path = Path(directory)
            (path / 'catalogue.json').write_text(json.dumps(CATALOGUE), encoding='utf-8')
            (path / 'carcontrol_zh_CN.ts').write_text(ts(contexts), encoding='utf-8')
            (path / 'glossary.md').write_text(GLOSSARY, encoding='utf-8')
            (path / 'alike-kept.txt').write_text(kept, encoding='utf-8')
            result = subprocess.run([sys.executable, str(CHECK), str(path / 'catalogue.json'), directory],
                                    capture_output=True, text=True)
        faults = [line.strip() for line in result.stdout.splitlines() if line.startswith('  ')]
        return result.returncode, faults

    def test_right_translations_pass(self):
        self.assertEqual(self.run_check(RIGHT), (0, []))

    def test_each_fault_found(self):
        cases = [
            # "light" as 亮 among the functions (two pages, one kind: their
            # lists share "width light") and among the levels.
            ({('CarInfoItem1_1', 'light'): '亮', ('CarInfoItem1_2', 'light'): '亮', ('CarInfoItem1_3', 'light'): '亮'},
             'alike: "light" is 亮 in rows of 2 kinds'),
            # The amplifier's band as a title and a level as an option.
            ({('CarInfoItem1_1', 'Medium'): '中'}, 'alike: "Medium" is 中 in rows of 2 kinds'),
            ({('CarInfoItem1_2', '5m'): '5m'}, 'units: CarInfoItem1_2 "5m" is 5m, minutes'),
            # Minutes of a row titled a time, with no seconds beside them.
            ({('CarInfoItem1_2', '10m'): '10m'}, 'units: CarInfoItem1_2 "10m" is 10m, minutes'),
            ({('CarInfoItem1_2', '6 amp'): '6安'}, 'units: CarInfoItem1_2 "6 amp" is 6安'),
            ({('CarInfoItem1_2', 'Departure hour'): '出发时间(时)'}, 'brackets: CarInfoItem1_2 "Departure hour"'),
            ({('CarInfoItem1_2', 'COMFORT'): 'COMFORT'}, 'latin: CarInfoItem1_2 "COMFORT" is COMFORT'),
        ]
        for changes, expected in cases:
            with self.subTest(expected=expected):
                status, faults = self.run_check(with_changes(changes))
                self.assertEqual(status, 1)
                self.assertEqual(len(faults), 1, faults)
                self.assertTrue(faults[0].startswith(expected), faults[0])

    def test_kept_alike_passes(self):
        changes = {('CarInfoItem1_1', 'Medium'): '中'}
        self.assertEqual(self.run_check(with_changes(changes), 'Medium | 中 | a band and a level read alike\n'),
                         (0, []))
        # An entry without its reason is refused.
        status, _ = self.run_check(with_changes(changes), 'Medium | 中 |\n')
        self.assertNotEqual(status, 0)


if __name__ == '__main__':
    unittest.main()
