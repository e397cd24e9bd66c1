// Plays the game that the pages show in the real window and takes their pictures of it. Needs a
// display, 3400 x 1920 or larger; run with QT_SCALE_FACTOR=2. The pictures are kept with the pages.

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QDockWidget>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QMouseEvent>
#include <QPainter>
#include <QTimer>
#include <cstdio>
#include <deque>
#include <filesystem>
#include <set>

#include "core/file_store.h"
#include "core/game_file.h"
#include "core/no_desktop.h"
#include "scenarios/catalogue.h"
#include "ui/design.h"
#include "ui/frm_game.h"
#include "ui/frm_splash.h"

namespace qarn {
namespace {

namespace fs = std::filesystem;

constexpr int columnOfPage = 730;  // pixels of the pages' usual width
constexpr QColor frame{0x99, 0x99, 0x99};

/// The die shows these numbers, one after the other.
class GivenRolls : public RandomNumbers {
public:
    explicit GivenRolls(std::deque<int> rolls) : rolls_(std::move(rolls)) {}
    void Seed() override {}
    double Next() override {
        const int roll = rolls_.front();
        rolls_.pop_front();
        return (roll - 0.5) / 5;
    }

private:
    std::deque<int> rolls_;
};

void LetWindowsSettle() {
    for (int i = 0; i < 20; ++i) QApplication::processEvents(QEventLoop::AllEvents, 20);
}

// Framed, no wider than a page, and once more with twice as many pixels.
void Save(const fs::path& folder, const std::string& name, const QPixmap& pixmap,
          int mostWidth = columnOfPage) {
    QImage image = pixmap.toImage().convertToFormat(QImage::Format_RGB32);
    image.setDevicePixelRatio(1);
    QPainter painter(&image);
    painter.setPen(QPen(frame, 2));
    painter.drawRect(image.rect().adjusted(1, 1, -1, -1));
    painter.end();
    if (image.width() > 2 * mostWidth) {
        image = image.scaledToWidth(2 * mostWidth, Qt::SmoothTransformation);
    }
    const QImage small =
        image.scaled(image.size() / 2, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    image.save(QString::fromStdString((folder / (name + "@2x.png")).string()), "PNG", 0);
    small.save(QString::fromStdString((folder / (name + ".png")).string()), "PNG", 0);
}

class NoWastebasket : public Wastebasket {
    void MoveThere(const std::string&) override {}
};

// The start window, in which Hollowmere is being chosen.
void TakeStartWindow(const fs::path& folder) {
    GivenRolls random({});
    NoSettings settings;
    NoFileTypes fileTypes;
    NoWastebasket wastebasket;
    const std::string games = folder.string();  // has none yet
    FrmSplash window(random, {settings, fileTypes, {games, games}}, wastebasket);
    window.show();
    LetWindowsSettle();
    for (QLineEdit* text : window.findChildren<QLineEdit*>()) {
        if (!text->isReadOnly()) text->insert("First try");
    }
    for (QPushButton* button : window.findChildren<QPushButton*>()) {
        if (button->text() == "&New") button->click();
    }
    for (QListWidget* list : window.findChildren<QListWidget*>()) {
        if (list->count() == scenarioCount) list->setCurrentRow(ScenarioNumber("HM") - 1);
    }
    LetWindowsSettle();
    Save(folder, "scenario", window.grab());
}

/// Somebody who has been offered the aids, and has chosen some.
class ChosenAids : public NoSettings {
public:
    explicit ChosenAids(std::set<std::string> aids) : aids_(std::move(aids)) {}
    std::string Read(const std::string&, const std::string& section, const std::string&,
                     const std::string& defaultValue) override {
        if (section == "Offer") return "Made";
        return aids_.contains(section) ? "True" : defaultValue;
    }
    void Write(const std::string&, const std::string& section, const std::string&,
               const std::string& value) override {
        if (value == "True") aids_.insert(section);
    }

private:
    std::set<std::string> aids_;
};

class Photographer {
public:
    Photographer(fs::path folder, std::deque<int> rolls, std::set<std::string> aids = {})
        : folder_(std::move(folder)),
          random_(std::move(rolls)),
          settings_(std::move(aids)),
          window_(random_, {settings_, fileTypes_, {}}) {
        const fs::path file = fs::temp_directory_path() / "First try.tgf";
        std::string game = NewGameText("HM", {{{"Marit", false}, {"Ansel", false}}});
        game[game.rfind('0')] = '1';  // Marit begins
        ReplaceFile(file.string(), game);
        window_.Open(file.string());
        window_.resize(1016, 696 + 24);
        LetWindowsSettle();
    }

    void Click(int X, int Y) {
        emit Board()->SquareClicked(X, Y);
        LetWindowsSettle();
    }

    void PointAt(int X, int Y) {
        QMouseEvent moves(QEvent::MouseMove, Board()->PlaceOfSquare({X, Y}).center(),
                          QCursor::pos(), Qt::NoButton, {}, {});
        QApplication::sendEvent(Board(), &moves);
        LetWindowsSettle();
    }

    void Press(const QString& name) {
        window_.findChild<QAbstractButton*>(name)->click();
        LetWindowsSettle();
    }

    void Choose(const QString& item) {
        window_.findChild<QAction*>(item)->trigger();
        LetWindowsSettle();
    }

    /// The boxes that come up from now on are taken under these names, or not where one is empty.
    void TakeBoxes(std::deque<std::string> names) {
        boxes_ = std::move(names);
        QTimer::singleShot(300, [this] { TakeBox(); });
    }

    void Take(const std::string& name, const QRect& pixels) {
        Save(folder_, name, window_.centralWidget()->grab(pixels));
    }
    /// With room for all that stands in it.
    void TakeDock(const std::string& name, const QString& dock) {
        window_.resize(1600, window_.height());
        window_.resizeDocks({window_.findChild<QDockWidget*>(dock)}, {530}, Qt::Horizontal);
        LetWindowsSettle();
        Save(folder_, name, window_.findChild<QWidget*>(dock)->grab());
    }
    void TakeWindow(const std::string& name, int width) {
        Save(folder_, name, window_.grab(), width);
    }

private:
    BoardWidget* Board() { return window_.findChild<BoardWidget*>(); }

    void TakeBox() {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (box == nullptr || boxes_.empty()) return;
        LetWindowsSettle();
        if (!boxes_.front().empty()) Save(folder_, boxes_.front(), box->grab());
        boxes_.pop_front();
        QTimer::singleShot(300, [this] { TakeBox(); });
        box->button(QMessageBox::Ok)->click();
    }

    fs::path folder_;
    GivenRolls random_;
    ChosenAids settings_;
    NoFileTypes fileTypes_;
    FrmGame window_;
    std::deque<std::string> boxes_;
};

constexpr QRect boardBelow{8 + 48 * 9, 8 + 64 * 5, 48 * 7, 64 * 5};
constexpr QRect boardAbove{8 + 48 * 9, 8 + 64 * 3, 48 * 7, 64 * 5};
constexpr QRect besideStatus{440, 560, 576, 136};
constexpr QRect boxesAndButtons{872, 355, 144, 300};

// The Hero's company walks to the river, and the corsairs row up to it.
void PlayToTheRiver(Photographer& photographer, bool take) {
    photographer.Press("cmdMove");
    photographer.Click(14, 7);
    if (take) photographer.Take("selecting", boxesAndButtons);
    photographer.Press("cmdDoneSel");
    photographer.Click(13, 7);
    photographer.Click(13, 8);
    photographer.Click(12, 8);
    if (take) photographer.Take("moved", boardBelow);
    photographer.Press("cmdMove");
    photographer.Press("cmdMove");
    photographer.Click(11, 10);
    photographer.Press("cmdDoneSel");
    photographer.Click(11, 9);
    photographer.Click(12, 9);
    photographer.Press("cmdMove");
    if (take) photographer.Take("corsairs", boardBelow);
}

void TakeWonGame(const fs::path& folder) {
    Photographer photographer(folder, {2, 5});
    photographer.Press("cmdSquareDetails");
    photographer.Click(14, 7);
    photographer.Take("square-information", {8 + 48 * 11, 216, 480, 368});
    photographer.Press("cmdSquareDetails");
    photographer.Press("cmdSeeTerDet(4)");
    photographer.Take("terrain-key", {640, 0, 376, 214});
    photographer.Press("cmdSeeTerDet(4)");

    PlayToTheRiver(photographer, true);
    photographer.TakeBoxes({"odds", "won", ""});
    photographer.Press("cmdAttack");
    photographer.Click(12, 8);
    photographer.Click(12, 9);
}

void TakeLostGame(const fs::path& folder) {
    Photographer photographer(folder, {5});
    PlayToTheRiver(photographer, false);
    photographer.TakeBoxes({"", ""});
    photographer.Press("cmdAttack");
    photographer.Click(12, 8);
    photographer.Click(12, 9);
    photographer.Take("casualty", boxesAndButtons);
}

void TakeAids(const fs::path& folder) {
    Photographer photographer(folder, {5}, {"Sides", "Reach", "Odds", "LastMove"});
    photographer.TakeWindow("welcome", 460);
    photographer.Press("cmdMove");
    photographer.Click(14, 7);
    photographer.Press("cmdDoneSel");
    photographer.TakeWindow("game", columnOfPage);
    photographer.Take("reach", boardAbove);
    photographer.PointAt(11, 5);
    photographer.Take("odds-ahead", besideStatus);
    photographer.Press("cmdMove");
    photographer.Press("cmdMove");
    photographer.Click(11, 10);
    photographer.Press("cmdDoneSel");
    photographer.Click(11, 9);
    photographer.Click(12, 9);
    photographer.Press("cmdMove");
    photographer.PointAt(1, 5);
    photographer.Take("last-move", boardBelow);

    Photographer plain(folder, {}, {"TerrainPatterns", "LargeCodes", "Coordinates"});
    plain.PointAt(1, 5);
    plain.Take("patterns", {440, 0, 576, 280});
}

void TakeDocks(const fs::path& folder) {
    Photographer photographer(folder, {2, 5});
    photographer.Choose("mnuJournal");
    photographer.Choose("mnuRoster");
    PlayToTheRiver(photographer, false);
    photographer.TakeBoxes({"", "", ""});
    photographer.Press("cmdAttack");
    photographer.Click(12, 8);
    photographer.Click(12, 9);
    photographer.TakeDock("journal", "dckJournal");
    photographer.TakeDock("roster", "dckRoster");
}

}  // namespace
}  // namespace qarn

int main(int argc, char* argv[]) {
    QApplication application(argc, argv);
    if (argc != 2) {
        std::fputs("usage: take_pictures FOLDER\n", stderr);
        return 2;
    }
    qarn::TakeStartWindow(argv[1]);
    qarn::TakeWonGame(argv[1]);
    qarn::TakeLostGame(argv[1]);
    qarn::TakeAids(argv[1]);
    qarn::TakeDocks(argv[1]);
    return 0;
}
