#!/usr/bin/env python3
"""Plays random moves against the computer. Usage: random_bot.py QARN-CONSOLE [SEED [MOVES]]"""
import json, os, random, subprocess, sys, tempfile


class Console:
    def __init__(self, program):
        self.process = subprocess.Popen([program, "--json"], text=True, bufsize=1,
                                        stdin=subprocess.PIPE, stdout=subprocess.PIPE)

    def do(self, command):
        self.process.stdin.write(command + "\n")
        return json.loads(self.process.stdout.readline())


def square_of(people):
    return people["LocationX"], people["LocationY"]


def choose_casualty(console, state):
    boxes = [i for i, box in enumerate(state["chkItems"], 1) if box["visible"] and box["enabled"]]
    console.do(f"tick {random.choice(boxes)}")
    return console.do("press cmdDoneSel")


def move(console, state):
    """Moves a random stack of the side to move, up to four steps into any direction."""
    own = [people for people in state["record"]["People"]
           if people["Side"] == state["record"]["bytTurn"] and people["LocationX"] > 0]
    console.do("press cmdMove")
    console.do("click %d %d" % square_of(random.choice(own)))
    state = console.do("press cmdDoneSel")  # all check boxes are ticked: everyone goes along
    leader = state["record"]["bytSelectedPeople"][0] - 1
    for _ in range(random.randint(1, 4)):
        x, y = square_of(state["record"]["People"][leader])
        dx, dy = random.choice([(1, 0), (-1, 0), (0, 1), (0, -1)])
        console.do("answer yes yes")  # to attack whoever stands there, against all odds
        state = console.do(f"click {x + dx} {y + dy}")  # a step that is not legal is refused
        if not state["open"]:
            return state
        if state["buttons"]["cmdDoneSel"]["visible"]:
            return choose_casualty(console, state)
    return console.do("press cmdMove")


def main(program, seed="1", moves="100"):
    random.seed(seed)
    console, left = Console(program), int(moves)
    with tempfile.TemporaryDirectory() as folder:
        console.do(f"seed {seed}")
        state = console.do(f'new "{os.path.join(folder, "bot.tgf")}" HM Bot human Blue computer')
        while state["open"] and left > 0:
            record = state["record"]
            left -= not state["tmrAI"]  # the timer runs only while the computer plays
            console.do("answer yes yes")
            state = console.do("timer") if state["tmrAI"] else move(console, state)
    print(state["boxes"][-1]["text"] if state["ended"] else
          "Groups left: Bot %d, Blue %d" % tuple(record["bytPeopleLeft"]))


main(*sys.argv[1:])
