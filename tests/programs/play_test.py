#!/usr/bin/env python3
"""./play from its answer to --help to a game in the terminal, and what stops it on the way.

play_test.py SOURCE_FOLDER QARN_CONSOLE: ./play runs in a folder of the test, beside the real
qarn-console. What it calls of the system, apt-get and ninja among them, are stand-ins that note how
they were called; nothing is installed and nothing is built.
"""

import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest

SOURCE = pathlib.Path(sys.argv[1])
CONSOLE = pathlib.Path(sys.argv[2])
NO_DISPLAY = 3
TOOLS = "cat cut dirname env grep ls mkdir paste printf readlink sed sh".split()

NINJA = 'if [ -e "$2/is-built" ]; then echo "ninja: no work to do."; fi'
CMAKE = 'case $1 in --build) touch "$2/is-built" ;; *) touch "$2/build/release/build.ninja" ;; esac'
APT_GET = """case "$*" in
    *--print-uris*) echo "Need to get 1 MB of archives."
                    echo "After this operation, 2 MB of additional disk space will be used." ;;
esac"""


class Play(unittest.TestCase):
    def setUp(self):
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="qarn-play-"))
        self.addCleanup(shutil.rmtree, self.folder)
        self.checkout = self.folder / "check out"
        self.build = self.checkout / "build/release"
        self.games = self.folder / "data/qarn"
        self.calls = self.folder / "calls"
        (self.checkout / "packaging").mkdir(parents=True)
        shutil.copy(SOURCE / "play", self.checkout)
        shutil.copy(SOURCE / "packaging/install_packages", self.checkout / "packaging")
        self.bin = self.folder / "bin"
        self.bin.mkdir()
        for tool in TOOLS + ["touch"]:
            (self.bin / tool).symlink_to(shutil.which(tool))
        for tool in ["c++", "dpkg-query"]:
            self.stand_in(tool, "")
        self.stand_in("ninja", NINJA)
        self.stand_in("cmake", CMAKE)
        self.stand_in("apt-get", APT_GET)
        self.stand_in("id", "echo 0")
        self.stand_in("nproc", "echo 2")

    def stand_in(self, name, script, folder=None):
        """Puts a program there that notes its call and then runs the script."""
        path = (folder or self.bin) / name
        note = f'printf "%s\\n" "{name} $*" >>"{self.calls}"'
        path.write_text(f"#!/bin/sh\n{note}\n{script}\n")
        path.chmod(0o755)

    def is_built(self, qarn="exit 0"):
        self.build.mkdir(parents=True)
        (self.build / "is-built").touch()
        (self.build / "qarn-console").symlink_to(CONSOLE)
        self.stand_in("qarn", qarn, self.build)

    def play(self, *arguments, **environment):
        """Runs ./play; gives its status, its output, and the calls of stand-ins but ninja's."""
        self.calls.write_text("")
        variables = {"PATH": str(self.bin), "XDG_DATA_HOME": str(self.games.parent)}
        variables |= {"HOME": str(self.folder)} | environment
        variables = {name: value for name, value in variables.items() if value is not None}
        run = subprocess.run([self.checkout / "play", *arguments], env=variables, text=True,
                             input="", stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
        calls = [call for call in self.calls.read_text().splitlines() if not call.startswith("ninja ")]
        return run.returncode, run.stdout, calls

    def fails(self, sentence, **environment):
        """./play ends with status 1, the sentence being the last thing it says."""
        status, output, calls = self.play(**environment)
        self.assertEqual((status, output.splitlines()[-1][: len(sentence)]), (1, sentence), output)
        return calls

    def test_answers_for_itself(self):
        status, output, calls = self.play("--help")
        self.assertEqual((status, output[:29], calls), (0, "usage: ./play [FILE.tgf]\nBuil", []))
        status, output, calls = self.play("--fullscreen")
        self.assertEqual((status, output[:6], calls), (2, "usage:", []))

    def test_installs_builds_and_starts(self):
        self.is_built("exit 7")
        (self.build / "is-built").unlink()
        status, output, calls = self.play("my", "game.tgf", DISPLAY=":0")
        self.assertEqual(status, 7)
        size = "Need to get 1 MB of archives. After this operation, 2 MB of additional disk space"
        self.assertIn("\n" + size, output)
        self.assertNotIn("fp-utils", output)
        steps = ["dpkg-query -W", "id -u", "apt-get -q update", "apt-get -o", "apt-get -q install",
                 "cmake -S", "nproc", "cmake --build", "qarn my game.tgf"]
        for step, call in zip(steps, calls, strict=True):
            self.assertTrue(call.startswith(step), f"{call} is not {step}")
        self.assertEqual(self.play(DISPLAY=":0")[2], ["qarn "])

    def test_plays_in_the_terminal_where_no_display_answers(self):
        self.is_built(f"exit {NO_DISPLAY}")
        for display in [{}, {"DISPLAY": ":9"}, {"WAYLAND_DISPLAY": "wayland-9"}]:
            status, output, calls = self.play(**display)
            self.assertEqual(status, 0)
            self.assertIn("Hollowmere 1.tgf (Player 1 vs. Player 2)", output)
            self.assertEqual(calls, ["qarn "] if display else [])
        self.assertEqual([*self.games.glob("*.tgf")], [self.games / "Hollowmere 1.tgf"])

    def test_goes_on_with_the_newest_game_in_the_terminal(self):
        self.is_built()
        self.play()
        first = self.games / "Hollowmere 1.tgf"
        for age, name in enumerate(["older.tgf", "the \"newest\" $1.TGF", "damaged.tgf", "x.txt"]):
            shutil.copy(first, self.games / name)
            os.utime(self.games / name, (age, age))
        os.utime(first, (0, 0))
        (self.games / "damaged.tgf").write_text("HM\r\n")
        self.assertIn('the "newest" $1.TGF (Player 1', self.play()[1])
        self.assertIn("older.tgf (Player 1", self.play(str(self.games / "older.tgf"))[1])
        self.assertEqual(len([*self.games.glob("*.*")]), 5)

    def test_says_what_a_game_in_the_terminal_lacks(self):
        self.is_built()
        no_home = {"HOME": None, "XDG_DATA_HOME": None}
        self.fails("HOME is not set, so there is no folder", **no_home)
        self.assertIn("The file can not be read", self.play("none.tgf", **no_home)[1])
        self.games.parent.write_text("in the way")
        self.fails("The folder for games can not be made:")

    def test_says_what_stops_the_build(self):
        (self.checkout / "build").write_text("in the way")
        self.assertEqual(self.fails("Nothing can be written to "), [])
        (self.checkout / "build").unlink()

        self.stand_in("apt-get", APT_GET + '\ncase "$*" in *"-q install"*) exit 100 ;; esac')
        self.fails("apt-get can not get these packages. Is this computer online?")
        self.stand_in("apt-get", 'echo "E: Unable to locate package" >&2; exit 100')
        calls = self.fails("apt-get can not get these packages. Is this computer online?")
        self.assertNotIn("-q install", " ".join(calls))

        self.stand_in("id", "echo 1000")
        self.fails("There is no sudo here.")
        self.stand_in("sudo", "echo ann is not in the sudoers file >&2; exit 1")
        calls = self.fails("sudo did not let apt-get run.")
        self.assertEqual(sum("sudo" in call for call in calls), 1)

        (self.bin / "apt-get").unlink()
        (self.bin / "cmake").unlink()
        self.fails("There is no apt-get here. What these Debian packages hold is needed: g++ cmake")


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
