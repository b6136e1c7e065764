#!/usr/bin/env python3
"""Makes translations/carcontrol_zh_TW.ts, Traditional Chinese as Taiwan
writes it, from the Simplified file carcontrol_zh_CN.ts:

    python3 tools/traditional.py

Every translation goes through OpenCC's Taiwan conversion with its phrases
(s2twp, Debian's package opencc), then through the car terms below: the
words of Taiwan's car menus where they differ from the mainland's, and the
few places where OpenCC's phrases, made for computer texts, read a car's
word as a program's. The source texts, contexts and the file's order stay
those of the Simplified file, so that lupdate keeps both the same way.
Run it after a change of the Simplified file and read the difference.
"""

import re
import subprocess
import sys
from pathlib import Path

TRANSLATIONS = Path(__file__).resolve().parent.parent / 'translations'

# After OpenCC, in this order: (pattern, replacement).
TERMS = [
    # OpenCC's computer words that are something else in a car.
    ('迴圈', '循環'),          # air recirculation, not a program's loop
    ('分割槽', '分區'),        # climate zones, not disk partitions
    ('型別', '類型'),
    ('引數', '參數'),
    ('檢視', '視圖'),          # a camera's view
    ('音訊率', '音頻率'),      # the radio's frequency
    ('影片', '影像'),          # camera pictures
    ('行動式', '攜帶式'),      # the portable charger
    # Taiwan's car terms.
    ('雨刮', '雨刷'),
    ('後備箱', '行李廂'),
    ('(?<![遮阻])擋(?!風)', '檔'),  # gears: P檔, 倒檔; the windscreen stays 擋風
    ('手剎', '手煞車'),
    ('剎車', '煞車'),
    ('制動', '煞車'),
    ('發動機', '引擎'),
    ('大燈', '頭燈'),
    ('轉向燈', '方向燈'),
    ('盲區', '盲點'),
    ('自適應巡航', '主動式定速巡航'),
    ('功放', '擴大機'),
    ('全景', '環景'),
    ('車道保持', '車道維持'),
    ('落鎖', '上鎖'),
    ('賬', '帳'),
    ('反饋', '回饋'),
    ('(提示|警告|報警)資訊', r'\1訊息'),
    ('(?<!發)電機', '馬達'),       # the drive motor; the generator stays 發電機
    ('泊車', '停車'),
    ('報警', '警示'),
    ('空氣質量', '空氣品質'),
    ('高階駕駛', '先進駕駛'),
    ('盲點檢測', '盲點偵測'),
    ('變道', '變換車道'),
    ('橫屏', '橫式螢幕'),
    ('分屏', '分割畫面'),
    ('屏(?!蔽)', '螢幕'),
    ('自定義', '自訂'),
    ('復位', '重設'),
    ('坡道起步', '上坡起步'),
    ('當前', '目前'),
]


def traditional(texts):
    """The texts, each of one line, in Taiwan's Traditional Chinese."""
    converted = subprocess.run(['opencc', '-c', 's2twp.json'], input='\n'.join(texts) + '\n',
                               capture_output=True, text=True, check=True).stdout.split('\n')[:len(texts)]
    result = []
    for text in converted:
        for old, new in TERMS:
            text = re.sub(old, new, text)
        result.append(text)
    return result


def main():
    source = (TRANSLATIONS / 'carcontrol_zh_CN.ts').read_text(encoding='utf-8')
    pattern = re.compile(r'(<translation[^>]*>)(.*?)(</translation>)', re.S)
    texts = [m.group(2) for m in pattern.finditer(source)]
    if any('\n' in text for text in texts):
        sys.exit('traditional.py: a translation of more than one line; convert it by hand')
    converted = iter(traditional(texts))
    target = pattern.sub(lambda m: m.group(1) + next(converted) + m.group(3), source)
    target = target.replace('<TS version="2.1" language="zh_CN">', '<TS version="2.1" language="zh_TW">', 1)
    (TRANSLATIONS / 'carcontrol_zh_TW.ts').write_text(target, encoding='utf-8')


if __name__ == '__main__':
    main()
