#!/usr/bin/env python3
"""Plays random moves against the computer. Usage: random_bot.py QARN-CONSOLE [SEED]"""
import json, os, random, subprocess, sys, tempfile

class Console:
    def __init__(self, program):
        self.process = subprocess.Popen([program, "--json"], text=True, bufsize=1,
                                        stdin=subprocess.PIPE, stdout=subprocess.PIPE)

    def do(self, command):
        self.process.stdin.write(command + "\n")
        state = json.loads(self.process.stdout.readline())
        if not state["ok"]:
            raise RuntimeError(f"{command}: {state['error']}")
        return state

def neighbours(people):
    x, y = people["LocationX"], people["LocationY"]
    squares = [(x + 1, y), (x - 1, y), (x, y + 1), (x, y - 1)]
    return [(x, y) for x, y in squares if 1 <= x <= 18 and 1 <= y <= 10]

def choose_casualty(console, state):
    boxes = [i for i, box in enumerate(state["chkItems"], 1) if box["visible"] and box["enabled"]]
    console.do(f"tick {random.choice(boxes)}")
    return console.do("press cmdDoneSel")

def move(console, state):
    """Moves a random stack of the side to move, up to four steps into any direction."""
    if state["buttons"]["cmdMove"]["enabled"]:
        state = console.do("press cmdMove")
        if state["buttons"]["cmdMove"]["enabled"]:
            return state  # that ended a move which had been left open
    own = [people for people in state["record"]["People"]
           if people["Side"] == state["record"]["bytTurn"] and people["LocationX"] > 0]
    while not state["buttons"]["cmdDoneSel"]["visible"]:
        state = console.do("click {LocationX} {LocationY}".format(**random.choice(own)))
    state = console.do("press cmdDoneSel")  # all boxes are ticked: everyone goes along
    leader = state["record"]["bytSelectedPeople"][0] - 1
    for _ in range(random.randint(1, 4)):
        console.do("answer yes yes")  # to attack whoever stands there, against all odds
        square = random.choice(neighbours(state["record"]["People"][leader]))
        state = console.do("click %d %d" % square)  # what is not legal leaves all as it was
        if not state["open"]:
            return state
        if state["buttons"]["cmdDoneSel"]["visible"]:
            return choose_casualty(console, state)
    return console.do("press cmdMove")

random.seed(sys.argv[2] if len(sys.argv) > 2 else "1")
console = Console(sys.argv[1])
console.do(f"seed {random.randrange(2**64)}")
with tempfile.TemporaryDirectory() as folder:
    state = console.do(f'new "{os.path.join(folder, "bot.tgf")}" HM Bot human Blue computer')
    while state["open"]:
        console.do("answer yes yes")
        record = state["record"]
        computer = state["tmrAI"] and record["blnComputer"][record["bytTurn"] - 1]
        state = console.do("timer") if computer else move(console, state)
print(state["boxes"][-1]["text"])
