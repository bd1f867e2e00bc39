#!/usr/bin/env python3
"""Runs the unmodified Windows program under Wine and looks at what reached the simulated monitor, the log, the screen and
the exit code. The cases lie in cases_*.py, a function each; the last line says how many passed."""

import argparse
import subprocess
import sys
import time
import traceback

import cases_accessory
import cases_audio
import cases_automation
import cases_monitor
import cases_pages
import cases_program
import cases_start
from rig import Rig, edid

AREAS = (cases_monitor, cases_pages, cases_program, cases_start, cases_automation, cases_accessory, cases_audio)
CASES = [value for area in AREAS for name, value in vars(area).items() if name.startswith("case_")]


def run_case(rig, case):
    begin = time.monotonic()
    try:
        rig.put_edid(edid("QRV SIM 27"))
        case(rig)
        passed = True
    except (AssertionError, OSError, ValueError, IndexError, subprocess.SubprocessError):
        traceback.print_exc()
        passed = False
    print(f"{'PASS' if passed else 'FAIL'}  {case.__name__[5:]}  ({time.monotonic() - begin:.1f} s)", flush=True)
    return passed


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--program", required=True, help="folder of quorvel.exe and its libraries")
    parser.add_argument("--standins", required=True, help="folder of the stand-in libraries and programs")
    parser.add_argument("--work", required=True, help="where the Wine prefix and the cases' folders are made")
    parser.add_argument("--suites", required=True, help="folder of the test suites of this machine")
    parser.add_argument("names", nargs="*", help="cases to run, all when none is named")
    arguments = parser.parse_args()
    chosen = [case for case in CASES if not arguments.names or case.__name__[5:] in arguments.names]
    with Rig(arguments.program, arguments.standins, arguments.work, arguments.suites) as rig:
        passed = sum(run_case(rig, case) for case in chosen)
    print(f"{passed} passed, {len(chosen) - passed} failed")
    return 0 if chosen and passed == len(chosen) else 1


if __name__ == "__main__":
    sys.exit(main())
