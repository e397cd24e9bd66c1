#!/usr/bin/env python3
"""Tests the windows' programs from outside: windows_test.py QARN QARN_HELP SCREEN_FILE."""

import os
import signal
import subprocess
import sys
import tempfile
import time
import unittest

SCREEN, HELP, QARN = (sys.argv.pop() for _ in range(3))
NEW_GAME = "HM\r\n" + "".join(f"{name:54}False\r\n" for name in ("Red", "Blue")) + " 0 \r\n"


def signals(program, kind):
    """The set of signals that a running program treats so, as its status tells."""
    with open(f"/proc/{program.pid}/status", encoding="ascii") as status:
        [mask] = [line.split()[1] for line in status if line.startswith(kind)]
    return {number for number in range(1, 32) if int(mask, 16) >> (number - 1) & 1}


class WindowsTest(unittest.TestCase):
    def start(self, *command):
        program = subprocess.Popen(command, env={
            **os.environ, "QT_QPA_PLATFORM": "offscreen:configfile=" + SCREEN})
        self.addCleanup(program.wait)
        self.addCleanup(program.kill)
        return program

    def wait_for(self, program, kind, number):
        end = time.monotonic() + 60
        while number not in signals(program, kind):
            self.assertTrue(program.poll() is None and time.monotonic() < end)
            time.sleep(0.01)

    def test_tells_of_itself_without_a_display(self):
        for argument, told in (("--help", "Usage: qarn "),
                               ("--version", "Thornmere Series Tactical Game Version 1.")):
            run = subprocess.run([QARN, argument], capture_output=True, text=True, timeout=60,
                                 env={**os.environ, "QT_QPA_PLATFORM": "none at all"})
            self.assertEqual((run.returncode, run.stdout[:len(told)]), (0, told), run.stderr)
        with open("/dev/full", "w", encoding="ascii") as full:
            run = subprocess.run([QARN, "--help"], stdout=full, stderr=subprocess.PIPE, timeout=60)
        self.assertEqual((run.returncode, run.stderr), (1, b"qarn: the output can not be written\n"))

    def test_a_full_quota_ends_no_program(self):
        for command in ([QARN], [HELP]):
            self.wait_for(self.start(*command), "SigIgn", signal.SIGXFSZ)

    def test_the_game_is_saved_when_the_program_is_told_to_end(self):
        with tempfile.TemporaryDirectory() as folder:
            path = os.path.join(folder, "game.tgf")
            with open(path, "w", newline="") as file:
                file.write(NEW_GAME)
            program = self.start(QARN, path)
            self.wait_for(program, "SigCgt", signal.SIGTERM)
            program.send_signal(signal.SIGTERM)
            self.assertEqual(program.wait(60), 0)
            with open(path, newline="") as file:
                self.assertEqual(len(file.readlines()), 58, "also when it has hardly begun")


if __name__ == "__main__":
    unittest.main()
