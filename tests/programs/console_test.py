#!/usr/bin/env python3
"""Tests qarn-console as a program: console_test.py PATH_OF_QARN_CONSOLE."""

import json
import os
import pty
import resource
import signal
import subprocess
import sys
import tempfile
import unittest

PROGRAM = sys.argv.pop(1)
PAGE = os.path.join(os.path.dirname(__file__), "../../docs/protocol.md")
STATE = os.path.join(os.path.dirname(__file__), "state.txt")
NEW = "new g.tgf HM Red human Blue human"
ACCEPTED = """seed 18446744073709551615; random 0 0.99 1e-3; answer yes no retry cancel;
    new h.tgf SB A human B human; open saved.tgf; press cmdMove; click 9 10; untick 1; tick 1;
    press cmdDoneSel; press cmdSquareDetails; click 18 1; press cmdSeeTerDet(0);
    menu mnuPeopleDetails; menu mnuHelp; press cmdMove; press cmdAttack; press cmdAttack;
    saveas other.tgf; timer; timer 3; reach 9 10; odds 9 10 10 10;
    house ownGroups off; hint; state; close"""
REFUSED_WITHOUT_GAME = """click 1 1; press cmdMove; tick 1; untick 1; menu mnuSave; timer;
    saveas x.tgf; reach; reach 1 1; odds 1 1 1 2; hint; close"""
REFUSED = """nonsense; Click 1 1; click 0 1; click 19 1; click 1 11; click 1; click 1 1 1;
    click one 1; click 1.5 1; press; press cmdDoneSel; press cmdNothing; press cmdSeeTerDet(9);
    press cmdSeeTerDet(8); press cmdSeeTerDet(); tick 1; tick 12; untick 0; menu mnuConvertFile;
    menu mnuNothing; menu File; timer 0; timer -1; answer; answer ok; answer yes maybe; random;
    random 1; random -0.1; random nan; random 0.5 x; seed; seed -1; seed 18446744073709551616;
    reach; reach 1; reach 1 1; reach 19 1; reach 14 7 1; odds 14 7; odds 14 7 14 11;
    house ownGroups; house ownGroups yes; house nothing on; saveas ""; saveas x\0y; open ""; open x\0.tgf; open; state now; help; quit now; click "1 1; new n.tgf HM A human B;
    new n.tgf hm A human B human; new n\0.tgf HM A human B human; new n.tgf HM A man B human; new none/n.tgf HM A human B human;
    new n.tgf HM Łucja human B human; new n.tgf HM \udcff human B human;
    new n.tgf HM """ + 55 * "A" + " human B human"


def words(text):
    return [command.strip() for command in text.split(";")]


def saved_game(*people):
    """A saved game of Hollowmere in which only these (entry, column, row) stand on the board."""
    numbers = [1, 9, 8] + 48 * [0] + [1, 15, 4, 7]
    for entry, column, row in people:
        numbers[1 + 2 * entry:3 + 2 * entry] = column, row
    players = "".join(f"{name:54}False\r\n" for name in ("Red", "Blue"))
    return "HM\r\n" + players + "".join(f" {number} \r\n" for number in numbers)


class ConsoleTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = os.path.realpath(folder.name)

    def path(self, name):
        return os.path.join(self.folder, name)

    def write(self, name, text):
        with open(self.path(name), "w", newline="") as file:
            file.write(text)

    def read(self, name):
        with open(self.path(name), newline="") as file:
            return file.read()

    def run_program(self, text, *arguments, **options):
        return subprocess.run([PROGRAM, *arguments], input=text.encode(errors="surrogateescape"),
                              cwd=self.folder, capture_output=True, timeout=60, **options)

    def start(self, text, *arguments, **options):
        """The program, which has been sent the text and runs on."""
        program = subprocess.Popen([PROGRAM, *arguments], cwd=self.folder, text=True, **{
            "stdin": subprocess.PIPE, "stdout": subprocess.PIPE, **options})
        if text:
            program.stdin.write(text)
            program.stdin.flush()
        return program

    def play(self, *commands, arguments=(), status=0, **options):
        """The objects that the commands give."""
        run = self.run_program("\n".join(commands) + "\n", "--json", *arguments, **options)
        self.assertEqual((run.stderr, run.returncode), (b"", status))
        return [json.loads(line) for line in run.stdout.decode().splitlines()]

    def test_the_objects(self):
        objects = self.play("random 0", "# a comment", "", NEW, "press cmdMove", "click 14 7",
                            "press cmdDoneSel", "  state  ")
        self.assertEqual(len(objects), 6)
        *_, last, again = objects
        self.assertEqual({**last, "happenings": []}, again)
        told = {**last, "record": list(last["record"]), **last["record"]}
        text = "".join(f"{key}: {json.dumps(value)}\n" for key, value in told.items())
        with open(STATE, encoding="utf-8") as state:
            self.assertEqual(text.replace(self.folder, "DIR"), state.read())

    def test_every_command(self):
        self.write("saved.tgf", saved_game((1, 9, 10), (6, 9, 10), (2, 10, 10), (9, 1, 1)))
        for command, done in zip(words(ACCEPTED), self.play(*words(ACCEPTED)), strict=True):
            self.assertEqual((done["ok"], done["error"]), (True, ""), command)
        self.assertEqual(self.read("other.tgf"), self.read("saved.tgf").replace(" 1 ", " 2 ", 1))

    def test_the_file_type_is_registered_with_the_desktop(self):
        folders = {"XDG_DATA_HOME": self.path("data"), "XDG_CONFIG_HOME": self.path("config")}
        marks = [done["menus"]["mnuTGF"]["checked"]
                 for done in self.play(NEW, "menu mnuTGF", "open g.tgf",
                                       env={**os.environ, **folders})]
        self.assertEqual(marks, [False, True, True])

    def test_refused_commands_change_nothing(self):
        for done in self.play(*words(REFUSED_WITHOUT_GAME)):
            self.assertEqual((done["ok"], done["error"]), (False, "No game is open."))
        objects = self.play("random 0", NEW, *(c for r in words(REFUSED) for c in (r, "state")))
        for command, done, state in zip(words(REFUSED), objects[2::2], objects[3::2], strict=True):
            self.assertTrue(done["error"] and not done["ok"], command)
            self.assertEqual({**done, "ok": True, "error": "", "boxes": []}, state, command)
            self.assertEqual(state, {**objects[1], "happenings": []}, command)
        self.assertEqual(os.listdir(self.folder), ["g.tgf"])
        # Nothing of a refused command waits for later.
        objects = self.play("answer yes maybe", "random 0.9 x", "random 0", NEW, "press cmdAttack",
                            "saveas x.tgf", "press cmdAttack", "menu mnuSaveAs", "menu New")
        self.assertEqual(objects[3]["record"]["bytTurn"], 1)
        self.assertEqual(objects[-1]["boxes"][0]["answer"], "no")
        self.assertFalse(os.path.exists(self.path("x.tgf")), "A refused Save As came later.")

    def test_exit_statuses(self):
        self.assertEqual(len(self.play(NEW, "quit", "state")), 1)
        self.assertEqual(self.play(NEW, "close", "click 1 1")[1:], [
            {"ok": not error, "error": error, "boxes": [], "help": [], "ended": True, "open": False,
             "happenings": [], "level": ["classic", "classic"],
             "house": {"ownGroups": False, "oneTurnForBurning": False}, "hint": None} for error in ("", "The program has ended.")])
        for argument, told in (("--help", b"Usage: qarn-console"),
                               ("--version", b"Thornmere Series Tactical Game Version 1.")):
            run = self.run_program("", argument)
            self.assertEqual((run.returncode, run.stderr), (0, b""))
            self.assertTrue(run.stdout.startswith(told), run.stdout)
        for arguments in (["--nonsense"], ["--json", "a.tgf", "b.tgf"],
                          ["--match", "classic", "nobody"]):
            run = self.run_program("", *arguments)
            self.assertEqual((run.returncode, run.stdout), (2, b""))
            self.assertIn(b"Usage: qarn-console", run.stderr)
        self.assertEqual(self.play(arguments=["none.tgf"], status=1), [])
        self.assertEqual(self.run_program("cancel\n", "none.tgf").returncode, 1)
        with open(PAGE, encoding="utf-8") as page:
            rows = page.read().split("## Exit statuses")[1].splitlines()
        told = {int(row.split("|")[1]) for row in rows if row[2:3].isdigit()}
        self.assertEqual(told, {self.run_program("").returncode, 1, 2})

    def test_a_working_folder_that_has_gone(self):
        gone = "The working folder can not be found: No such file or directory."
        self.write("saved.tgf", saved_game((1, 9, 10), (9, 1, 1)))
        for file in ([], ["g.tgf"]):
            os.mkdir(self.path("gone"))
            run = subprocess.run(
                ["sh", "-c", 'rmdir "$PWD" && exec "$@"', "sh", PROGRAM, "--json", *file],
                cwd=self.path("gone"), capture_output=True, text=True, timeout=60,
                input=f"open x.tgf\n{NEW}\nopen {self.path('saved.tgf')}\nsaveas x.tgf\n")
            objects = [json.loads(line) for line in run.stdout.splitlines()]
            self.assertEqual([(o["error"], o["open"]) for o in objects],
                             [(gone, False), (gone, False), ("", True), (gone, True)])
            self.assertEqual((run.returncode, run.stderr), (0, gone + "\n" if file else ""))

    def test_boxes(self):
        [_, opened] = self.play("answer retry yes", "open none.tgf", status=1)
        box = {"title": "Error 53", "buttons": "Retry/Cancel", "answer": "retry",
               "text": "Invalid game format\nThe file can not be read: No such file or directory.\n"
                       + self.path("none.tgf")}
        self.assertEqual(opened["boxes"], [box, {**box, "answer": "cancel"}])
        self.assertEqual((opened["ok"], opened["ended"], opened["open"]), (True, True, False))

    def test_the_end_of_a_game(self):
        self.write("g.tgf", saved_game((6, 9, 10), (2, 10, 10)))
        objects = self.play("press cmdAttack", "click 9 10", "random 0", "click 10 10", "state",
                            "press cmdMove", arguments=["g.tgf"])
        self.assertEqual([box["text"] for box in objects[3]["boxes"][:2]], [
            "You will win if you roll a 1 or less, tie if you roll a 2, and lose if you roll a 3 "
            "and up. Select OK to roll", "You rolled a 1 and won the attack!"])
        self.assertEqual(len(objects[3]["boxes"]), 3)
        self.assertEqual([(o["ok"], o["ended"]) for o in objects],
                         3 * [(True, False)] + 2 * [(True, True)] + [(False, True)])
        self.assertEqual(os.listdir(self.folder), [])

    def test_names_and_a_game_in_progress(self):
        name = 'The "Old" \\ Rat €'
        quoted = name.replace("\\", "\\\\").replace('"', '\\"')
        objects = self.play("random 0 0", NEW, "press cmdMove", "click 14 7", "press cmdDoneSel",
                            "press cmdMove", f'new "a b.tgf" CF "{quoted}" human "" computer',
                            "open g.tgf", 'open "a b.tgf"')
        self.assertEqual(objects[-2]["record"]["bytTurn"], 2)  # it was saved
        self.assertEqual(objects[-1]["record"]["strPlayerName"], [name, ""])
        self.assertEqual(objects[-1]["record"]["blnComputer"], [False, True])
        self.assertEqual(objects[-1]["caption"],
                         f"Cinderfell Tactical Game - a b.tgf ({name} vs. )")

    def test_opponents_play_whole_turns_and_answer_for_themselves(self):
        new = 'new g.tgf ER Red computer Blue computer'
        one, *_ = self.play("level scout 1", "level warlord 2", "level classic 1", "level nobody")
        self.assertEqual(one["level"], ["scout", "classic"])
        games = [self.play("seed 5", "level scout", new, *(400 * ["timer 20"])) for _ in range(2)]
        self.assertEqual(games[0], games[1])
        boxes = [box for done in games[0] for box in done["boxes"]]
        happened = [h["what"] for done in games[0] for h in done["happenings"]]
        self.assertTrue(boxes and {box["answer"] for box in boxes} <= {"yes", "ok"})
        self.assertNotIn("No good move!", [box["text"] for box in boxes])
        self.assertGreater(happened.count("turn"), 20)
        self.assertEqual(happened[-1], "end")

    def test_board_and_buttons_wait_for_an_opponent(self):
        meddling = ["click 1 1", "press cmdMove", "press cmdAttack", "press cmdDoneSel", "untick 1"]
        rest = ["menu mnuSave", "press cmdSquareDetails", "click 1 1", "press cmdSquareDetails"]
        for level in ("classic", "scout"):
            objects = self.play("seed 5", f"level {level}", "new g.tgf SB R computer B computer",
                                "timer 2", *meddling, *rest)
            waits = ["wait for it" in done["error"] for done in objects[4:9]]
            self.assertEqual(waits, 5 * [level == "scout"])
            if level == "scout":
                self.assertFalse(objects[3]["menus"]["File"]["enabled"])
                self.assertTrue(all(done["ok"] for done in objects[9:]))
                self.assertTrue(objects[-2]["lblDetailMore"].startswith("Current Items:"))

    def test_house_rules_are_kept_and_told(self):
        self.addCleanup(self.play, "house ownGroups off")
        on = {"ownGroups": True, "oneTurnForBurning": False}
        self.assertEqual(self.play("house ownGroups on")[0]["house"], on)
        *_, last = self.play("random 0", "state", NEW, "press cmdMove", "house ownGroups off")
        self.assertEqual((last["house"], last["ok"]), (on, False))
        self.assertEqual(_[1]["house"], on)
        self.assertEqual(_[2]["lblStatus"], "It is Red's turn.\nHouse rules: own groups only.")

    def test_convert_file_ends_when_nobody_answers(self):
        older = saved_game((1, 9, 10), (6, 15, 7), (9, 1, 1)).replace("HM", "7", 1)
        self.write("g.tgf", older)
        why = "The file has not been converted, as nobody has answered.\n" + self.path("g.tgf")
        for answers in (0, 3, 12):
            objects = self.play("answer" + answers * " no", "state", "menu mnuConvertFile", "state",
                                "answer yes", "menu mnuConvertFile", arguments=["g.tgf"])
            _, before, refused, after, _, converted = objects
            self.assertEqual((refused["ok"], refused["error"]), (False, why))
            self.assertEqual([box["answer"] for box in refused["boxes"]
                              if box["buttons"] == "Yes/No"], max(12, answers + 1) * ["no"])
            self.assertEqual(after, before)
            self.assertEqual((converted["ok"], converted["record"]["bytScenario"]), (True, 8))
            self.write("g.tgf", older)
        self.play("menu mnuConvertFile", "quit", arguments=["g.tgf"])
        self.assertEqual(self.read("g.tgf"), older)
        run = self.run_program("menu mnuConvertFile\nno\n", "g.tgf")
        self.assertEqual((run.returncode, self.read("g.tgf")), (0, older))
        self.assertIn("as nobody has answered", run.stdout.decode())

    def test_same_seed_same_game(self):
        def attacks(seed):
            self.write("s.tgf", saved_game((5, 9, 10), (12, 9, 10), (13, 9, 10), (16, 9, 10),
                                           (2, 10, 10), (7, 10, 10), (8, 10, 10), (9, 1, 1)))
            attack = words("press cmdAttack; click 9 10; click 10 10; tick 1; press cmdDoneSel")
            return self.play("answer " + 50 * "yes ", f"seed {seed}", "open s.tgf", *(5 * attack),
                             "quit")

        games = [attacks(seed) for seed in (5, 5, 6, 7, 8)]
        self.assertTrue(games[0] == games[1])
        self.assertFalse(all(game == games[0] for game in games))
        turns = [o["record"]["bytTurn"] for o in self.play("seed 9", *(5 * [NEW]))[1:]]
        self.assertEqual(len(set(turns)), 1)  # the seed serves every load

    def test_answers_before_the_next_command_is_read(self):
        with self.start("", "--json") as program:
            for _ in range(2):
                program.stdin.write("state\n")
                program.stdin.flush()
                self.assertFalse(json.loads(program.stdout.readline())["open"])
            program.stdin.close()

    def test_saves_when_it_is_told_to_end(self):
        for number in (signal.SIGTERM, signal.SIGHUP, signal.SIGINT):
            for arguments in (["--json"], []):
                for command in ("state", "menu New", "timer 1000000000"):
                    text = f"random 0\nnew g.tgf HM A computer B computer\n{command}\n"
                    with self.start(text, *arguments) as program:
                        while "Hollowmere" not in program.stdout.readline():
                            pass
                        program.send_signal(number)
                        self.assertEqual(program.wait(60), 0)
                    self.assertEqual(len(self.read("g.tgf").splitlines()), 58)
        person, terminal = pty.openpty()
        with self.start("", stdin=terminal, start_new_session=True) as program:
            os.close(terminal)
            os.write(person, b"new h.tgf HM A human B human\n")
            while "h.tgf" not in program.stdout.readline():
                pass
            os.close(person)
            self.assertEqual(program.wait(60), 0)
        self.assertEqual(len(self.read("h.tgf").splitlines()), 58, "its terminal has gone")
        with self.start("", "--json", preexec_fn=lambda: signal.signal(
                signal.SIGHUP, signal.SIG_IGN)) as program:
            program.send_signal(signal.SIGHUP)
            self.assertIn('"ok"', program.communicate("state\n", 60)[0], "as under nohup")

    def test_a_sitting_of_a_person_that_was_killed_can_be_recovered(self):
        environment = {**os.environ, "XDG_STATE_HOME": self.path("state")}
        text = f"random 0\n{NEW}\nmenu mnuPassTurn\nyes\n"
        for _ in range(2):  # the second new game forgets the one that was to be recovered
            with self.start(text, env=environment) as program:
                while "It is Blue's turn." not in program.stdout.readline():
                    pass
                program.kill()
        run = self.run_program("yes\nclose\nyes\n", "g.tgf", env=environment)
        self.assertIn(b"Do you want to go on from the last turn?", run.stdout)
        self.assertEqual(self.read("g.tgf").splitlines()[3].strip(), "2", "Blue is to move")
        self.assertEqual(os.listdir(self.path("state/qarn/recovery")), [])

    def test_streams_that_are_closed_or_full(self):
        for stream in (0, 1, 2):
            run = self.run_program("", "--json", preexec_fn=lambda: os.close(stream))
            self.assertEqual(run.returncode, 0, stream)
        for arguments in (["--json"], ["--selfplay", "1"]):
            with open("/dev/full", "wb") as full:
                run = subprocess.run([PROGRAM, *arguments], input=b"state\n", stdout=full,
                                     stderr=subprocess.PIPE, timeout=60)
            self.assertEqual((run.returncode, run.stderr), (1, b"The output can not be written.\n"))

    def test_a_full_quota_is_a_message(self):
        def limit():
            resource.setrlimit(resource.RLIMIT_FSIZE, (100, 100))

        # Counts of lines, cut off as well, go elsewhere than those of all other runs.
        elsewhere = tempfile.TemporaryDirectory()
        self.addCleanup(elsewhere.cleanup)
        counts = {"GCOV_PREFIX": elsewhere.name, "GCOV_ERROR_FILE": "/dev/null"}
        [refused] = self.play(NEW, preexec_fn=limit, env={**os.environ, **counts})
        self.assertIn("File too large.", refused["boxes"][0]["text"])
        self.assertEqual(os.listdir(self.folder), [])

    def test_for_a_person(self):
        run = self.run_program(f"random 0\n{NEW}\nhelp\npress cmdMove\nclick 14 7\nclick 0 0\n"
                               "press cmdDoneSel\npress cmdMove\nmenu New\nperhaps\nno\nquit\n")
        text = run.stdout.decode()
        self.assertEqual((run.returncode, run.stderr), (0, b""))
        for part in ("Hollowmere Tactical Game - g.tgf (Red vs. Blue)\n", "It is Red's turn.\n",
                     "Items: 1 [x] Q    2 [x] WS", "It is Blue's turn.\n",
                     "should be a whole number from 1 to 18.\n",
                     "--- Leave Game: Are you sure you want to leave this game?\n"):
            self.assertIn(part, text)
        self.assertEqual(text.count("--- yes or no? "), 2)
        self.assertEqual(text.count("press NAME"), 2)  # at the start, and asked for
        self.assertNotIn("\x1b", text)


if __name__ == "__main__":
    unittest.main()
