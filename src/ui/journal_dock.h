#pragma once

#include <QTextEdit>
#include <vector>

#include "play/journal.h"
#include "ui/side_dock.h"

namespace qarn {

struct Game;

/// The journal beside the board: its turns, the newest at the end, and the luck behind them.
class JournalDock : public SideDock {
    Q_OBJECT

public:
    JournalDock();

    /// Shows what has been added to the journal since the last call, or taken back, from the turn
    /// before the last on. Whoever reads elsewhere is left there.
    void Show(const Journal& journal, const Game& game);

signals:
    /// A person wants it written to a file at this path.
    void SaveWanted(const QString& path);

private:
    // A line of the text.
    struct Line {
        enum Kind { Sentence, Turn, Heading };

        QString text;
        Kind kind = Sentence;  // Turn: the heading of one

        friend bool operator==(const Line&, const Line&) = default;
    };

    void AskForFile();
    static std::vector<Line> LinesOf(const Journal& journal, const Game& game);
    void Cut(std::size_t lines);
    void Append(const Line& line);
    void FollowTurns();

    QTextEdit* text_;
    std::vector<Line> lines_;  // that it shows
    std::string gamePath_;
    bool follows_ = true;  // the newest turns
    int followedTo_ = 0;   // by the scroll bar
};

}  // namespace qarn
