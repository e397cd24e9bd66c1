#include <QHBoxLayout>
#include <QVBoxLayout>
#include <QValidator>

#include "core/code_page.h"
#include "core/square.h"
#include "ui/frm_splash.h"
#include "ui/scenario_picture.h"
#include "ui/text.h"

namespace qarn {
namespace {

constexpr int gap = 12;

// Takes only characters that a game file can hold.
class StorableText : public QValidator {
public:
    using QValidator::QValidator;

    State validate(QString& text, int&) const override {
        return CanStore(text.toStdString()) ? Acceptable : Invalid;
    }
};

void Enlarge(QWidget& widget, double factor) {
    QFont font = widget.font();
    font.setPointSizeF(font.pointSizeF() * factor);
    font.setBold(true);
    widget.setFont(font);
}

}  // namespace

void FrmSplash::Lay() {
    Enlarge(lblProgramName_, 1.7);
    lblProgramName_.setAlignment(Qt::AlignCenter);
    auto* all = new QVBoxLayout(this);
    all->setContentsMargins(2 * gap, 2 * gap, 2 * gap, 2 * gap);
    all->setSpacing(gap);
    all->addWidget(&lblProgramName_);
    all->addLayout(LayNewGame());
    all->addLayout(LayLists(), 1);
    all->addLayout(LayLocation());
    all->addLayout(LayBottom());
    for (QPushButton* button : findChildren<QPushButton*>()) button->setAutoDefault(false);
    AlignButtons();
    resize(720, 580);
}

// Those at the right edge make a column as wide as the widest of them.
void FrmSplash::AlignButtons() {
    cmdDelete_.setText(ToQt(window_.controls.cmdDelete.Caption));
    const int width = cmdDelete_.sizeHint().width();
    for (QPushButton* button : {&cmdNew_, &cmdLoad_, &cmdDelete_, &cmdBrowse_, &cmdExit_}) {
        button->setMinimumWidth(width);
    }
}

QLayout* FrmSplash::LayNewGame() {
    lblInstructions_.setBuddy(&txtNewFilePath_);
    storableText_ = new StorableText(this);
    txtNewFilePath_.setMaxLength(static_cast<int>(window_.controls.txtNewFilePath.MaxLength));
    for (const std::string& opponent : window_.controls.cboOpponent.List) {
        cboOpponent_.addItem(ToQt(opponent));
    }
    cboOpponent_.setAccessibleName("Opponent");
    for (QLabel* label : {&lblReplaces_, &lblOpponent_}) label->setWordWrap(true);
    lblReplaces_.setObjectName("lblReplaces");
    auto* line = new QHBoxLayout;
    line->addWidget(&txtNewFilePath_, 1);
    line->addWidget(&chkComputer_);
    line->addWidget(&cboOpponent_);
    line->addWidget(&cmdNew_);
    auto* part = new QVBoxLayout;
    part->addWidget(&lblInstructions_);
    part->addLayout(line);
    part->addWidget(&lblReplaces_);
    part->addWidget(&lblOpponent_);
    return part;
}

// Each list stands in the place of the others: what is hidden takes no room in one row.
QLayout* FrmSplash::LayLists() {
    for (const std::string& title : window_.controls.lstScenarios.List) {
        lstScenarios_.addItem(ToQt(title));
    }
    lstScenarios_.setAccessibleName("Scenarios");
    fileLoad_.setAccessibleName("Saved games");
    fileLoad_.setSpacing(gap / 4);
    fileLoad_.ShowWhileEmpty("No games are saved here yet.\nType in a name above and press New.");
    txtBackGround_.setReadOnly(true);
    txtBackGround_.setAccessibleName("Program background");
    auto* part = new QHBoxLayout;
    part->addWidget(&lstScenarios_, 1);
    part->addLayout(LayStory());
    part->addWidget(&fileLoad_, 1);
    part->addWidget(&txtBackGround_, 1);
    auto* buttons = new QVBoxLayout;
    buttons->addWidget(&cmdLoad_);
    buttons->addWidget(&cmdDelete_);
    buttons->addStretch();
    part->addLayout(buttons);
    return part;
}

QLayout* FrmSplash::LayStory() {
    lblScenarioBackground_.setObjectName("lblScenarioBackground");
    lblScenarioBackground_.setWordWrap(true);
    lblScenarioBackground_.setAlignment(Qt::AlignTop);
    balance_.setObjectName("balance");
    sides_.setObjectName("sides");
    picture_.setObjectName("picture");
    for (QLabel* label : {&sides_, &balance_}) label->setWordWrap(true);
    picture_.setFixedHeight(rowCount * pictureSquare + 1);
    auto* part = new QVBoxLayout;
    part->addWidget(&picture_);
    part->addWidget(&lblScenarioBackground_, 1);
    part->addWidget(&sides_);
    part->addWidget(&balance_);
    return part;
}

QLayout* FrmSplash::LayLocation() {
    lblYouAre_.setBuddy(&txtLocation_);
    auto* part = new QHBoxLayout;
    part->addWidget(&lblYouAre_);
    part->addWidget(&txtLocation_, 1);
    part->addWidget(&cmdBrowse_);
    return part;
}

QLayout* FrmSplash::LayBottom() {
    auto* part = new QHBoxLayout;
    part->addWidget(&cmdBackGround_);
    part->addStretch();
    part->addWidget(&cmdExit_);
    return part;
}

}  // namespace qarn
