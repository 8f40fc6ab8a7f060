#!/usr/bin/env python3
"""Prints "PASSED FAILED" of a GoogleTest XML report; "0 0" if there is none."""
import sys
import xml.etree.ElementTree as tree

try:
    suites = tree.parse(sys.argv[1]).getroot()
    total = int(suites.get("tests", 0)) - int(suites.get("disabled", 0))
    failed = int(suites.get("failures", 0)) + int(suites.get("errors", 0))
    print(total - failed, failed)
except (OSError, tree.ParseError):
    print(0, 0)
