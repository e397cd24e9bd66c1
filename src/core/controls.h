#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "core/game_record.h"

namespace qarn {

// The controls of the game window as plain data. A handler reads and writes these; a front end
// shows them. Places are in twips (1/1440 inch, 15 to a pixel) of the window's client area of
// 15240 x 10440. Only what a handler changes is here: fixed places belong to the front end.

struct Color {
    std::uint32_t rgb = 0;  ///< 0xRRGGBB

    friend bool operator==(Color, Color) = default;
};

struct SquareLabel {
    PeopleSet Shown;  ///< whose codes make up its caption, see CaptionOfSquare
    Color BackColor{0xFFFFFF};
    Color ForeColor{0x000080};

    friend bool operator==(const SquareLabel&, const SquareLabel&) = default;
};

struct Label {
    std::string Caption;
    bool Visible = true;
    int Top = 0;

    friend bool operator==(const Label&, const Label&) = default;
};

/// A label whose caption is one of the program's own texts.
struct KeyLabel {
    std::string_view Caption;
    bool Visible = true;
    int Top = 0;

    friend bool operator==(const KeyLabel&, const KeyLabel&) = default;
};

struct Button {
    std::string_view Caption;  ///< one of the program's own texts
    bool Enabled = true;
    bool Visible = true;
    int Top = 0;

    friend bool operator==(const Button&, const Button&) = default;
};

struct CheckBox {
    std::string_view Caption;  ///< one of the program's own texts
    bool Enabled = true;
    bool Visible = false;
    bool Value = false;  ///< ticked

    friend bool operator==(const CheckBox&, const CheckBox&) = default;
};

/// A frame or shape that a handler moves about.
struct Marker {
    int Left = 0;
    int Top = 0;
    bool Visible = false;

    friend bool operator==(const Marker&, const Marker&) = default;
};

/// A hint: an arrow on the board, and what the status line says beside it.
struct HintMark {
    Path Way = {};             ///< the squares of the arrow, the start first; none: no arrow
    std::string Caption = {};  ///< stands at its head
    bool Visible = false;
    std::string Sentence = {};
    std::string StatusBefore = {};  ///< the status line without it

    friend bool operator==(const HintMark&, const HintMark&) = default;
};

struct MenuState {
    bool Enabled = true;
    bool Visible = true;
    bool Checked = false;

    friend bool operator==(const MenuState&, const MenuState&) = default;
};

struct Timer {
    bool Enabled = false;

    friend bool operator==(const Timer&, const Timer&) = default;
};

enum class Control { None, cmdMove, chkFirst };

/// One set of controls, in the state in which the window is created.
struct Controls {
    Controls();

    std::string Caption = "Thornmere Series Tactical Game";

    std::array<std::array<SquareLabel, rowCount + 1>, columnCount + 1> lbl;  ///< lbl[X][Y]
    std::array<KeyLabel, terrainKindCount> lblTerrKey;
    std::array<Button, terrainKindCount> cmdSeeTerDet;
    Label lblTerrainDescription{.Caption = {}, .Visible = false};

    Button cmdMove{.Caption = "&Move"};
    Button cmdAttack{.Caption = "&Attack"};
    Button cmdDoneSel{.Caption = "Done &Selecting", .Visible = false};
    Button cmdSquareDetails{.Caption = "Square &Information"};
    std::array<CheckBox, checkBoxCount + 1> chkItems;  ///< 1 to 11

    Label lblStatus;
    Label lblDetailMore{.Caption = "Current Items:"};
    Label lblSummary;
    Marker fraQuickDetails;
    Marker shpHighlight;
    HintMark Hint;

    MenuState File;
    MenuState mnuPeopleDetails;
    MenuState mnuConvertFile{.Visible = false};
    MenuState mnuSummary;
    MenuState mnuTGF;
    MenuState mnuAbout;
    MenuState mnuTakeBack{.Enabled = false};
    MenuState mnuCancelMove{.Enabled = false};

    Timer tmrAI;

    /// The control that a handler has given the focus to. The front end moves the focus there and
    /// sets this back to None.
    Control SetFocus = Control::None;

    friend bool operator==(const Controls&, const Controls&) = default;
};

/// The place of terrain key label `code` in the window's design, in twips from the top.
constexpr int TerrKeyTop(int code) { return 120 + 360 * code; }

}  // namespace qarn
