#include "shell/program_texts.h"

#include "scenarios/catalogue.h"

namespace qarn {
namespace {

constexpr auto howItBegan =
    "This program began on a wet holiday with the lid of a biscuit tin, a bag of dried beans and "
    "an "
    "argument about whether squirrels ought to pay full price for forest.  We had been reading the "
    "Thornmere books aloud, a chapter each, and neither of us would let the other's favourites "
    "lose.  So we ruled a river onto squared paper, gave every creature three numbers, and rolled "
    "for it.  By the end of that summer the paper had worn through along its folds, there were "
    "boards under both beds, and somebody had trodden on the Corsair.  We wrote the program to "
    "save "
    "the carpet.";

constexpr auto closing =
    ".  In the near future, the program will include a scenario for each of the books in the "
    "Thornmere series.  Until it does, if a creature that you love is missing, or is weaker than "
    "you remember, write and tell us.  We have been wrong about hedgehogs before.";

constexpr auto signature = "Marit Holloway and Ansel Pyke";
constexpr auto role = "Authors of QARN, and its first two opponents";

}  // namespace

std::string ProgramBackground() {
    std::string text = howItBegan;
    text += "\nCurrently, this program simulates ";
    ListNames(false, text);
    text.pop_back();  // the blank behind the last title
    text += closing;
    text += "\n";
    text += signature;
    text += "\n";
    text += role;
    return text;
}

std::string ProductNameVersion() {
    return std::string("Thornmere Series Tactical Game Version ") + QARN_VERSION;
}

std::string Credits() {
    return "Design, rules and story: Marit Holloway\n"
           "Program and computer opponent: Ansel Pyke\n"
           "Boards ruled, ruled again and coloured in: both of us\n"
           "Played until it broke: everyone who came to tea";
}

std::string LegalNotices() {
    return "Copyright (c) 2026 The QARN developers\n"
           "\n"
           "This program is free software under the MIT License.  You may use it, copy it, change "
           "it and pass it on, as long as this notice and the license go with it.  It comes "
           "without "
           "warranty of any kind: if your side loses, you have no one to blame but the die.\n"
           "\n"
           "The windows are built with Qt, which is licensed under the GNU Lesser General Public "
           "License, version 3.  GLib, which speaks to the desktop, CHMLib, which reads the help "
           "file, and libseccomp, which guards that reading, are licensed under the GNU Lesser "
           "General Public License, version 2.1 or later; nlohmann-json, which writes for other "
           "programs, under the MIT License; libX11 and libXrandr, which switch the screen, under "
           "licenses of the same kind.\n"
           "\n"
           "All creatures, places and events are invented.  Any likeness to a creature living or "
           "dead would surprise the authors as much as the creature.";
}

}  // namespace qarn
