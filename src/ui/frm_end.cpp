#include "ui/frm_end.h"

#include <QFile>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "core/failure_text.h"
#include "core/game.h"
#include "play/end_report.h"
#include "play/game_journal.h"
#include "ui/journal_file.h"
#include "ui/text.h"
#include "ui/window_icon.h"
#include "window/play_again.h"

namespace qarn {
namespace {

constexpr double headingSize = 1.6;  // by the other texts
constexpr int textWidth = 300;       // at least
constexpr int gap = 12;

QLabel* Text(const std::string& text, const char* name) {
    auto* label = new QLabel(ToQt(text));
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return label;
}

QLabel* Heading(const std::string& text) {
    QLabel* heading = Text(text, "lblOutcome");
    QFont font = heading->font();
    font.setBold(true);
    font.setPointSizeF(font.pointSizeF() * headingSize);
    heading->setFont(font);
    return heading;
}

void AddFact(QGridLayout* grid, int row, const std::string& what, const std::string& told,
             const char* name) {
    QLabel* text = Text(told, name);
    text->setWordWrap(true);
    text->setMinimumWidth(textWidth);
    grid->addWidget(new QLabel(ToQt(what)), row, 0, Qt::AlignTop);
    grid->addWidget(text, row, 1, Qt::AlignTop);
}

}  // namespace

FrmEnd::FrmEnd(QWidget* gameWindow, const Game& game, const GameJournal& journal)
    : QDialog(gameWindow), game_(game), journal_(journal) {
    const EndReport report = ReportOfEnd(game, journal.Told());
    setWindowTitle("End of the Game");
    setWindowIcon(WindowIcon());

    auto* facts = new QGridLayout;
    facts->setHorizontalSpacing(gap);
    facts->setColumnStretch(1, 1);
    facts->addWidget(new QLabel("It took"), 0, 0);
    facts->addWidget(Text(report.turns, "lblTurns"), 0, 1);
    const auto& names = game.record.strPlayerName;
    AddFact(facts, 1, names[1] + " lost", report.lost[1], "lblLost1");
    AddFact(facts, 2, names[2] + " lost", report.lost[2], "lblLost2");
    AddFact(facts, 3, "Luck", report.luck, "lblLuck");

    auto* buttons = new QHBoxLayout;
    AddButton(buttons, "cmdAgain", "&Again", "The same scenario from its start",
              &FrmEnd::PlayAgain);
    AddButton(buttons, "cmdExchange", "Sides E&xchanged", "The same, each on the other side",
              &FrmEnd::ExchangeSides);
    AddButton(buttons, "cmdStart", "&Start Window", "Another game", &FrmEnd::GoToStartWindow);
    AddButton(buttons, "cmdSaveJournal", "Save &Journal...", "What came about, as a text file",
              &FrmEnd::SaveJournal);
    AddButton(buttons, "cmdExit", "&Exit", "Ends the program", &FrmEnd::Exit);

    auto* all = new QVBoxLayout(this);
    all->setSizeConstraint(QLayout::SetFixedSize);
    all->setSpacing(gap);
    all->addWidget(Heading(report.outcome));
    all->addLayout(facts);
    all->addLayout(buttons);
}

void FrmEnd::AddButton(QHBoxLayout* row, const char* name, const char* caption, const char* tip,
                       void (FrmEnd::*choose)()) {
    auto* button = new QPushButton(caption);
    button->setObjectName(name);
    button->setToolTip(tip);
    connect(button, &QPushButton::clicked, this, [this, choose] { (this->*choose)(); });
    row->addWidget(button);
}

void FrmEnd::SaveJournal() {
    const QString path = AskForJournalFile(this, game_.record.strGamePath);
    if (path.isEmpty()) return;
    try {
        journal_.Export(QFile::encodeName(path).toStdString(), game_);
    } catch (...) {
        game_.ports.dialogs.Tell(FailureText(std::current_exception(), "SaveJournal"));
    }
}

void FrmEnd::WriteAndPlay(bool exchanged) {
    try {
        WriteGameAgain(game_, exchanged);
    } catch (...) {
        game_.ports.dialogs.Tell(FailureText(std::current_exception(), "cmdAgain_Click"));
        return;
    }
    Leave(NextWindow::Game);
}

void FrmEnd::Leave(NextWindow next) {
    next_ = next;
    accept();
}

}  // namespace qarn
