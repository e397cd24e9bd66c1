#include "ui/journal_dock.h"

#include <QAbstractTextDocumentLayout>
#include <QPushButton>
#include <QScrollBar>
#include <QTextBlock>
#include <QVBoxLayout>
#include <algorithm>

#include "core/game.h"
#include "play/tell_journal.h"
#include "ui/journal_file.h"
#include "ui/text.h"

namespace qarn {
namespace {

QTextBlockFormat FormatOf(bool heading, int lineHeight) {
    QTextBlockFormat format;
    format.setTopMargin(heading ? lineHeight / 2.0 : lineHeight / 6.0);
    format.setLeftMargin(heading ? 0 : lineHeight / 2.0);
    return format;
}

// A number stays with its percent sign.
QString Sentence(const std::string& sentence) {
    return ToQt(sentence).replace(" %", QString::fromUtf8("\u00A0%"));
}

QTextCharFormat LettersOf(bool heading) {
    QTextCharFormat letters;
    letters.setFontWeight(heading ? QFont::Bold : QFont::Normal);
    return letters;
}

}  // namespace

JournalDock::JournalDock() : SideDock("dckJournal", "Journal", new QWidget), text_(new QTextEdit) {
    text_->setObjectName("txtJournal");
    text_->setReadOnly(true);
    text_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    text_->setTabChangesFocus(true);
    text_->setUndoRedoEnabled(false);
    text_->setAccessibleName("Journal");
    // Once all of the text has its place.
    connect(
        text_->verticalScrollBar(), &QScrollBar::rangeChanged, this,
        [this] {
            if (follows_) FollowTurns();
        },
        Qt::QueuedConnection);
    auto* save = new QPushButton("Save Journal...");
    save->setObjectName("cmdSaveJournal");
    connect(save, &QPushButton::clicked, this, &JournalDock::AskForFile);

    auto* layout = new QVBoxLayout(widget());
    layout->addWidget(text_, 1);
    layout->addWidget(save, 0, Qt::AlignLeft);
}

void JournalDock::Show(const Journal& journal, const Game& game) {
    gamePath_ = game.record.strGamePath;
    std::vector<Line> lines = LinesOf(journal, game);
    if (lines == lines_) return;
    follows_ = text_->verticalScrollBar()->value() == followedTo_;
    const auto same = std::mismatch(lines.begin(), lines.end(), lines_.begin(), lines_.end());
    Cut(static_cast<std::size_t>(same.first - lines.begin()));
    std::for_each(same.first, lines.end(), [this](const Line& line) { Append(line); });
    lines_ = std::move(lines);
    if (follows_) FollowTurns();
}

// From the turn before the last on, so that the opponent's stands there as a whole.
void JournalDock::FollowTurns() {
    int block = static_cast<int>(lines_.size());
    for (int headings = 0; block > 0 && headings < 2;) {
        if (lines_[static_cast<std::size_t>(--block)].kind == Line::Turn) ++headings;
    }
    const QTextDocument& document = *text_->document();
    const QRectF first =
        document.documentLayout()->blockBoundingRect(document.findBlockByNumber(block));
    text_->verticalScrollBar()->setValue(static_cast<int>(first.top()));
    followedTo_ = text_->verticalScrollBar()->value();
}

void JournalDock::AskForFile() {
    const QString path = AskForJournalFile(window(), gamePath_);
    if (!path.isEmpty()) emit SaveWanted(path);
}

std::vector<JournalDock::Line> JournalDock::LinesOf(const Journal& journal, const Game& game) {
    std::vector<Line> lines;
    for (const ToldTurn& turn : TellTurns(journal, game)) {
        if (!turn.heading.empty()) lines.push_back({ToQt(turn.heading), Line::Turn});
        for (const std::string& sentence : turn.sentences) lines.push_back({Sentence(sentence)});
    }
    const std::vector<std::string> luck = TellLuck(journal, game);
    if (!luck.empty()) lines.push_back({"Luck", Line::Heading});
    for (const std::string& sentence : luck) lines.push_back({Sentence(sentence)});
    return lines;
}

// A document always has one block.
void JournalDock::Cut(std::size_t lines) {
    if (lines == lines_.size()) return;
    QTextCursor cursor(text_->document());
    if (lines > 0) {
        const QTextBlock last = text_->document()->findBlockByNumber(static_cast<int>(lines) - 1);
        cursor.setPosition(last.position() + last.length() - 1);
    }
    cursor.movePosition(QTextCursor::End, QTextCursor::KeepAnchor);
    cursor.removeSelectedText();
}

void JournalDock::Append(const Line& line) {
    QTextCursor cursor(text_->document());
    cursor.movePosition(QTextCursor::End);
    const QTextBlockFormat format = FormatOf(line.kind != Line::Sentence, fontMetrics().height());
    if (text_->document()->isEmpty()) {
        cursor.setBlockFormat(format);
    } else {
        cursor.insertBlock(format);
    }
    cursor.insertText(line.text, LettersOf(line.kind != Line::Sentence));
}

}  // namespace qarn
