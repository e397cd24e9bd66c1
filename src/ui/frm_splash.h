#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QFileSystemWatcher>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <array>
#include <functional>

#include "desktop/help_program.h"
#include "shell/start_window.h"
#include "ui/choice_list.h"
#include "ui/qt_ports.h"

namespace qarn {

/// The start window: forwards its events to the handlers of StartWindow by name and shows the
/// controls as they then stand. It closes once another window is next.
class FrmSplash : public QDialog {
public:
    /// What is given here outlives the window.
    FrmSplash(RandomNumbers& random, const DesktopPorts& desktop, Wastebasket& wastebasket);

    ~FrmSplash() override;

    /// Makes the window ready for a person who comes from a game, `blnOpen` to choose a saved one.
    void Prepare(bool blnOpen);

    /// The next window, and the game's path when it is the game window.
    const StartWindow& Shown() const { return window_; }

    void reject() override;  ///< Escape and the close box press "E&xit"

protected:
    bool eventFilter(QObject* object, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    using Handler = std::function<void(StartWindow&)>;

    struct NamedWidget {
        StartControl control;
        QWidget* widget;
        const char* name;
    };

    void Lay();
    QLayout* LayNewGame();
    QLayout* LayLists();
    QLayout* LayStory();
    QLayout* LayLocation();
    QLayout* LayBottom();
    void AlignButtons();
    void Connect();
    void RunOnClick(QPushButton& button, const Handler& handler);
    void RunOnFocus(const QObject& widget, bool got);

    void Run(const QString& event, const Handler& handler);
    void FollowFolder();
    void ShowControls();
    void ShowFiles();
    void ShowPlayer();
    void ShowScenario();
    void ShowDefaultButton();
    void MoveFocus();
    std::array<NamedWidget, 13> Widgets();
    QWidget* WidgetOf(StartControl control);

    QtDialogs dialogs_;
    HelpProgram help_;
    StartWindow window_;
    bool running_ = false;  // a handler
    bool folderChanged_ = false;

    QLabel lblProgramName_;
    QLabel lblInstructions_;
    QLineEdit txtNewFilePath_;
    QValidator* storableText_ = nullptr;
    QLabel lblReplaces_;
    QPushButton cmdNew_;
    QCheckBox chkComputer_;
    QComboBox cboOpponent_;
    QLabel lblOpponent_;
    ChoiceList lstScenarios_;
    QLabel picture_;
    QLabel lblScenarioBackground_;
    QLabel sides_;
    QLabel balance_;
    ChoiceList fileLoad_;
    QPushButton cmdLoad_;
    QPushButton cmdDelete_;
    QLabel lblYouAre_;
    QLineEdit txtLocation_;
    QPushButton cmdBrowse_;
    QPushButton cmdBackGround_;
    QPlainTextEdit txtBackGround_;
    QPushButton cmdExit_;
    QFileSystemWatcher folder_;
};

}  // namespace qarn
