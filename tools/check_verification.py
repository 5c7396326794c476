#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Evaluates the expressions in docs/verification.md: each must give the expected value beside it."""
import re
import sys

text = open(sys.argv[1], encoding="utf-8").read()
names = {}
exec(re.search(r"```python\n(.*?)```", text, re.S).group(1), names)
rows = re.findall(r"^\| (.*?) \| `(.*?)` \| (\S+)", text, re.M)
wrong = [row for row in rows if abs(eval(row[1], names) / float(row[2]) - 1) > 1e-5]
for plant, expression, expected in wrong:
    print(f"{plant}: {expression} is not {expected}")
sys.exit(0 if rows and not wrong else 1)
