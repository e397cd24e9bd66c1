#include <QHBoxLayout>
#include <QVBoxLayout>
#include <QValidator>

#include "core/code_page.h"
#include "ui/frm_splash.h"
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
    all->addLayout(LayScenarios(), 1);
    all->addLayout(LaySavedGames(), 1);
    all->addLayout(LayBottom());
    for (QPushButton* button : findChildren<QPushButton*>()) button->setAutoDefault(false);
    resize(720, 520);
}

QLayout* FrmSplash::LayNewGame() {
    lblInstructions_.setBuddy(&txtNewFilePath_);
    storableText_ = new StorableText(this);
    txtNewFilePath_.setMaxLength(static_cast<int>(window_.controls.txtNewFilePath.MaxLength));
    auto* line = new QHBoxLayout;
    line->addWidget(&txtNewFilePath_, 1);
    line->addWidget(&chkComputer_);
    line->addWidget(&cmdNew_);
    auto* part = new QVBoxLayout;
    part->addWidget(&lblInstructions_);
    part->addLayout(line);
    return part;
}

QLayout* FrmSplash::LayScenarios() {
    for (const std::string& title : window_.controls.lstScenarios.List) {
        lstScenarios_.addItem(ToQt(title));
    }
    lstScenarios_.setAccessibleName("Scenarios");
    lblScenarioBackground_.setWordWrap(true);
    lblScenarioBackground_.setAlignment(Qt::AlignTop);
    auto* story = new QVBoxLayout;
    story->addWidget(&picture_);
    story->addWidget(&lblScenarioBackground_, 1);
    auto* part = new QHBoxLayout;
    part->addWidget(&lstScenarios_, 1);
    part->addLayout(story);
    return part;
}

QLayout* FrmSplash::LaySavedGames() {
    fileLoad_.setAccessibleName("Saved games");
    txtBackGround_.setReadOnly(true);
    txtBackGround_.setAccessibleName("Program background");
    auto* buttons = new QVBoxLayout;
    buttons->addWidget(&cmdLoad_);
    buttons->addWidget(&cmdDelete_);
    buttons->addStretch();
    auto* files = new QHBoxLayout;
    files->addWidget(&fileLoad_, 1);
    files->addWidget(&txtBackGround_, 1);  // in the place of the list
    files->addLayout(buttons);
    lblYouAre_.setBuddy(&txtLocation_);
    auto* location = new QHBoxLayout;
    location->addWidget(&lblYouAre_);
    location->addWidget(&txtLocation_, 1);
    location->addWidget(&cmdBrowse_);
    auto* part = new QVBoxLayout;
    part->addLayout(files, 1);
    part->addLayout(location);
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
