#pragma once

#include <QCheckBox>
#include <QFrame>
#include <QPushButton>
#include <array>
#include <functional>
#include <string>

#include "core/game.h"
#include "ui/check_box_style.h"
#include "ui/fitted_label.h"
#include "ui/scaled_area.h"
#include "ui/status_line.h"
#include "ui/terrain_label.h"

namespace qarn {

/// Runs the handler of an event of the game window, called by the handler's name.
using EventRunner = std::function<void(const std::string&, const std::function<void(Game&)>&)>;

/// Everything on the game window but the board and the menus: the terrain key, buttons, check
/// boxes, the status line and the frames that float over the board.
class ControlPanel {
public:
    /// Makes the widgets on `area`, which then owns them, in the order in which the tab key visits
    /// them. `run` gets the handler of each of their events.
    ControlPanel(ScaledArea* area, EventRunner run);

    /// Brings every widget up to date.
    void Show(const Game& game);

    /// Makes room for a strip beside the status line, or gives the room back.
    void MakeRoomForStrip(bool room);

    /// Where the status line stands on the screen.
    QRect PlaceOfStatusLine() const;

    /// Clicks check box 1 to 11, if a person can.
    void ClickBox(int i);

    /// Gives the focus to a control that a handler has chosen.
    void FocusOn(Control control);

    /// The buttons, which leave the arrow keys to the board.
    std::vector<QPushButton*> PushButtons() const;

private:
    void MakeCheckBoxes();
    void MakeButtons();
    void MakeTerrainKey();
    void MakeLabels();
    void MakeFloatingFrames();
    QPushButton* MakeButton(QWidget* parent, const char* name);

    void ShowCheckBoxes(const Game& game);
    void ShowTerrainKey(const Game& game);
    void ShowFloatingFrames(const Controls& controls);

    ScaledArea* area_;
    EventRunner run_;
    CheckBoxStyle checkBoxStyle_;

    QFrame* fraCheckBoxes_ = nullptr;
    std::array<QCheckBox*, checkBoxCount + 1> chkItems_{};
    QPushButton* cmdDoneSel_ = nullptr;
    QPushButton* cmdAttack_ = nullptr;
    QPushButton* cmdMove_ = nullptr;
    QPushButton* cmdSquareDetails_ = nullptr;
    std::array<TerrainLabel*, terrainKindCount> lblTerrKey_{};
    std::array<QPushButton*, terrainKindCount> cmdSeeTerDet_{};
    FittedLabel* lblDetailMore_ = nullptr;
    StatusLine* lblStatus_ = nullptr;
    FittedLabel* lblTerrainDescription_ = nullptr;
    QFrame* fraQuickDetails_ = nullptr;
    FittedLabel* lblSummary_ = nullptr;
};

/// The size in pixels at which the captions of the panel's buttons fit in them, at the size of the
/// window's design, for a font of this kind.
double DesignFontSize(const QFont& font);

}  // namespace qarn
