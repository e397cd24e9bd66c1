#include "ui/control_panel.h"

#include <QFontInfo>
#include <QFontMetricsF>
#include <algorithm>

#include "play/ticked_told.h"
#include "rules/terrain.h"
#include "ui/design.h"
#include "ui/note_look.h"
#include "ui/text.h"
#include "window/buttons.h"
#include "window/opponents_turn.h"

namespace qarn {
namespace {

constexpr double titleFont = 1.1;  // by the size of the other fonts

// The button that has the least room for its caption, in pixels of the design. Its letters may move
// together a little.
constexpr auto widestCaption = "Square Information";
constexpr int captionRoom = cmdSquareDetailsTwips.width() / twipsPerPixel - 6;
constexpr double tightestSpacing = 0.92;

void ShowButton(QPushButton* widget, const Button& button, bool usable = true) {
    widget->setText(ToQt(button.Caption));
    widget->setEnabled(button.Enabled && usable);
    widget->setVisible(button.Visible);
}

// Names go out to screen readers, and tips to the desktop: only what is new.
void Name(QWidget* widget, const QString& name) {
    if (widget->accessibleName() != name) widget->setAccessibleName(name);
}

void NameWithTip(QWidget* widget, const QString& name) {
    Name(widget, name);
    if (widget->toolTip() != name) widget->setToolTip(name);
}

QFont Bold(QFont font) {
    font.setBold(true);
    return font;
}

// Moves the letters of the widest caption together as far as its button makes it necessary.
void Tighten(QPushButton* button) {
    const double width = QFontMetricsF(button->font()).horizontalAdvance(widestCaption);
    QFont spacing;  // the rest is that of the other buttons
    spacing.setLetterSpacing(QFont::PercentageSpacing, std::min(100.0, 100 * captionRoom / width));
    button->setFont(spacing);
}

// A note that lies over the board. The mouse reaches the squares beneath it.
void MakeNote(QFrame* widget) {
    widget->setAttribute(Qt::WA_TransparentForMouseEvents);
    LookLikeNote(*widget);
}

}  // namespace

ControlPanel::ControlPanel(ScaledArea* area, EventRunner run) : area_(area), run_(std::move(run)) {
    MakeCheckBoxes();
    MakeButtons();
    MakeTerrainKey();
    MakeLabels();
    MakeFloatingFrames();
}

QPushButton* ControlPanel::MakeButton(QWidget* parent, const char* name) {
    auto* button = new QPushButton(parent);
    button->setObjectName(name);
    button->setAutoDefault(true);  // Enter presses it while it has the focus
    QObject::connect(button, &QPushButton::clicked, [this, &known = *FindButton(name)] {
        run_(std::string(known.Name) + "_Click", known.Click);
    });
    return button;
}

void ControlPanel::MakeCheckBoxes() {
    fraCheckBoxes_ = new QFrame(area_);
    fraCheckBoxes_->setObjectName("fraCheckBoxes");
    fraCheckBoxes_->setFrameShape(QFrame::StyledPanel);
    area_->Place(fraCheckBoxes_, fraCheckBoxesTwips);
    for (std::size_t i = 1; i <= checkBoxCount; ++i) {
        auto* box = new QCheckBox(fraCheckBoxes_);
        box->setObjectName(QString("chkItems(%1)").arg(i));
        box->setStyle(&checkBoxStyle_);
        box->hide();
        QObject::connect(box, &QCheckBox::clicked, [this, i](bool ticked) {
            run_("chkItems_Click", [=](Game& game) { game.controls.chkItems[i].Value = ticked; });
        });
        area_->Place(box, ChkItemsTwips(static_cast<int>(i)));
        chkItems_[i] = box;
    }
    cmdDoneSel_ = MakeButton(fraCheckBoxes_, "cmdDoneSel");
    area_->Place(cmdDoneSel_, cmdDoneSelTwips);
}

void ControlPanel::MakeButtons() {
    cmdAttack_ = MakeButton(area_, "cmdAttack");
    cmdMove_ = MakeButton(area_, "cmdMove");
    cmdSquareDetails_ = MakeButton(area_, "cmdSquareDetails");
    Tighten(cmdSquareDetails_);
    area_->Place(cmdAttack_, cmdAttackTwips);
    area_->Place(cmdMove_, cmdMoveTwips);
    area_->Place(cmdSquareDetails_, cmdSquareDetailsTwips);
}

void ControlPanel::MakeTerrainKey() {
    const QFont bold = Bold(area_->font());
    for (std::uint8_t code = 0; code < terrainKindCount; ++code) {
        auto* label = new TerrainLabel(area_, code, titleFont);
        label->setObjectName(QString("lblTerrKey(%1)").arg(code));
        label->setFont(bold);
        lblTerrKey_[code] = label;

        auto* button = new QPushButton(area_);
        button->setObjectName(QString("cmdSeeTerDet(%1)").arg(code));
        button->setAutoDefault(true);
        QObject::connect(button, &QPushButton::clicked, [this, code] {
            run_("cmdSeeTerDet_Click", [code](Game& game) { cmdSeeTerDet_Click(game, code); });
        });
        cmdSeeTerDet_[code] = button;
    }
}

void ControlPanel::MakeLabels() {
    lblDetailMore_ = new FittedLabel(area_);
    lblDetailMore_->setObjectName("lblDetailMore");
    area_->Place(lblDetailMore_, lblDetailMoreTwips);
    lblStatus_ = new StatusLine(area_, lblStatusTwips.height() / double{twipsPerPixel});
    lblStatus_->setObjectName("lblStatus");
    area_->Place(lblStatus_, lblStatusTwips);
}

void ControlPanel::MakeFloatingFrames() {
    const QFont bold = Bold(area_->font());
    lblTerrainDescription_ = new FittedLabel(area_);
    lblTerrainDescription_->setObjectName("lblTerrainDescription");
    MakeNote(lblTerrainDescription_);
    lblTerrainDescription_->setMargin(4);
    lblTerrainDescription_->hide();

    fraQuickDetails_ = new QFrame(area_);
    fraQuickDetails_->setObjectName("fraQuickDetails");
    MakeNote(fraQuickDetails_);
    fraQuickDetails_->hide();
    auto* title = new FittedLabel(fraQuickDetails_, titleFont);
    title->setFont(bold);
    title->ShowText("Quick Info");
    title->setForegroundRole(QPalette::ToolTipText);
    area_->Place(title, quickInfoTitleTwips);
    lblSummary_ = new FittedLabel(fraQuickDetails_);
    lblSummary_->setObjectName("lblSummary");
    lblSummary_->setForegroundRole(QPalette::ToolTipText);
    area_->Place(lblSummary_, lblSummaryTwips);
}

// ---- Bringing up to date ----

void ControlPanel::Show(const Game& game) {
    const Controls& controls = game.controls;
    ShowCheckBoxes(game);
    for (QPushButton* widget : {cmdDoneSel_, cmdAttack_, cmdMove_, cmdSquareDetails_}) {
        const WindowButton& button = *FindButton(widget->objectName().toStdString());
        ShowButton(widget, controls.*button.State, TakesPress(game, button));
    }
    ShowTerrainKey(game);
    std::string items = controls.lblDetailMore.Caption;
    if (const std::string ticked = ToldOfTicked(game); !ticked.empty()) items += '\n' + ticked;
    lblDetailMore_->ShowText(ToLabelText(items));
    lblStatus_->Tell(ToLabelText(controls.lblStatus.Caption));
    ShowFloatingFrames(controls);
}

void ControlPanel::ShowCheckBoxes(const Game& game) {
    const bool usable = !OpponentActs(game);
    for (std::size_t i = 1; i <= checkBoxCount; ++i) {
        const CheckBox& chkItem = game.controls.chkItems[i];
        QCheckBox* box = chkItems_[i];
        box->setText(ToQt(chkItem.Caption).trimmed());
        box->setEnabled(chkItem.Enabled && usable);
        box->setVisible(chkItem.Visible);
        box->setChecked(chkItem.Value);
        if (!chkItem.Visible) continue;
        NameWithTip(box, ToQt(game.record.People.at(game.record.bytListedPeople[i]).Name));
    }
}

void ControlPanel::ShowTerrainKey(const Game& game) {
    const Controls& controls = game.controls;
    for (std::size_t i = 0; i < terrainKindCount; ++i) {
        const KeyLabel& key = controls.lblTerrKey[i];
        lblTerrKey_[i]->ShowText(ToLabelText(key.Caption));
        lblTerrKey_[i]->setVisible(key.Visible);
        lblTerrKey_[i]->ShowPattern(game.view.terrainPatterns);
        area_->Place(lblTerrKey_[i], LblTerrKeyTwips(key.Top));

        const Button& button = controls.cmdSeeTerDet[i];
        ShowButton(cmdSeeTerDet_[i], button);
        Name(cmdSeeTerDet_[i], "About " + ToQt(key.Caption));
        area_->Place(cmdSeeTerDet_[i], CmdSeeTerDetTwips(button.Top));
    }
}

void ControlPanel::ShowFloatingFrames(const Controls& controls) {
    const Label& description = controls.lblTerrainDescription;
    area_->Place(lblTerrainDescription_, LblTerrainDescriptionTwips(description.Top));
    lblTerrainDescription_->ShowText(ToLabelText(description.Caption));
    lblTerrainDescription_->setVisible(description.Visible);

    const Marker& frame = controls.fraQuickDetails;
    const QRect frameTwips = FraQuickDetailsTwips(frame.Left, frame.Top);
    area_->Place(fraQuickDetails_, frameTwips);
    lblSummary_->ShowText(ToLabelText(controls.lblSummary.Caption));
    fraQuickDetails_->setVisible(frame.Visible);
    const QRect covered = frame.Visible ? frameTwips & lblStatusTwips : QRect();
    lblStatus_->StandBelow(double(covered.height()) / lblStatusTwips.height());
}

void ControlPanel::MakeRoomForStrip(bool room) {
    area_->Place(lblStatus_, room ? lblStatusBesideStripTwips : lblStatusTwips);
}

QRect ControlPanel::PlaceOfStatusLine() const {
    return QRect(lblStatus_->mapToGlobal(QPoint()), lblStatus_->size());
}

void ControlPanel::ClickBox(int i) { chkItems_.at(static_cast<std::size_t>(i))->click(); }

// ---- Focus ----

void ControlPanel::FocusOn(Control control) {
    if (control == Control::cmdMove) cmdMove_->setFocus();
    if (control == Control::chkFirst) chkItems_[1]->setFocus();
}

std::vector<QPushButton*> ControlPanel::PushButtons() const {
    std::vector<QPushButton*> buttons{cmdDoneSel_, cmdAttack_, cmdMove_, cmdSquareDetails_};
    buttons.insert(buttons.end(), cmdSeeTerDet_.begin(), cmdSeeTerDet_.end());
    return buttons;
}

double DesignFontSize(const QFont& font) {
    constexpr double largest = 13;
    const double unitWidth =
        QFontMetricsF(font).horizontalAdvance(widestCaption) / QFontInfo(font).pixelSize();
    return std::min(largest, captionRoom / (unitWidth * tightestSpacing));
}

}  // namespace qarn
