#!/usr/bin/env python3
"""Lets the example bot play: random_bot_test.py PATH_OF_BOT PATH_OF_QARN_CONSOLE."""

import subprocess
import sys
import unittest

CONSOLE = sys.argv.pop()
BOT = sys.argv.pop()


def play(seed):
    return subprocess.run([sys.executable, BOT, CONSOLE, seed], capture_output=True, text=True,
                          timeout=120, check=True).stdout


class RandomBot(unittest.TestCase):
    def test_plays_the_same_game_for_the_same_seed_to_its_end(self):
        for seed in ("29", "33"):  # whose games are short
            text = play(seed)
            self.assertTrue(text.startswith("Gallowrock!") or text.startswith('"Well, fare you'),
                            text)
            self.assertEqual(play(seed), text)


unittest.main()
