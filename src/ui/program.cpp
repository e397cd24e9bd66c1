#include "ui/program.h"

#include <QApplication>
#include <QDialog>
#include <QSocketNotifier>

#include "desktop/deferred_services.h"
#include "desktop/desktop_display.h"
#include "desktop/linux_desktop.h"
#include "desktop/process_signals.h"
#include "play/end_report.h"
#include "ui/frm_end.h"
#include "ui/frm_game.h"
#include "ui/frm_splash.h"
#include "ui/frm_yes_no_help.h"

namespace qarn {
namespace {

// The windows of one run, each shown until another one is next.
class Program {
public:
    // A person who logs out, and whoever ends the program from outside, is asked nothing.
    Program() : signals_(NoteEndSignals(), QSocketNotifier::Read) {
        QObject::connect(&signals_, &QSocketNotifier::activated, &signals_, [this] { End(); });
        QObject::connect(qApp, &QGuiApplication::commitDataRequest, &signals_, [this] { End(); });
    }

    int Run(const std::string& strCommandLine) {
        StartUp(strCommandLine);
        while (next_ != NextWindow::None && !ending_) {
            if (next_ == NextWindow::Start) {
                ShowStartWindow();
            } else {
                ShowGameWindow();
            }
        }
        return exitStatus_;
    }

private:
    void StartUp(const std::string& strCommandLine) {
        FrmYesNoHelp window(desktop_.Ports().folders.program, display_, computer_, strCommandLine);
        if (window.Asks()) window.exec();
        next_ = window.Shown().Next;
        strGamePath_ = window.Shown().strGamePath;
    }

    void ShowStartWindow() {
        FrmSplash window(random_, desktop_.Ports(), wastebasket_);
        if (fromGame_) window.Prepare(blnOpen_);
        window.exec();
        next_ = window.Shown().Next;
        strGamePath_ = window.Shown().strGamePath;
    }

    void ShowGameWindow() {
        FrmGame window(random_, desktop_.Ports());
        game_ = &window;
        window.Open(strGamePath_);
        if (window.ShownGame().blnOpen) QApplication::exec();
        game_ = nullptr;
        fromGame_ = true;
        blnOpen_ = window.ShownGame().blnLeftByOpen;
        exitStatus_ = window.ShownGame().exitStatus;
        next_ = window.ShownGame().blnEnded ? NextWindow::None : NextWindow::Start;
        if (IsOver(window.ShownGame()) && !ending_) AskWhatNext(window);
    }

    void AskWhatNext(FrmGame& window) {
        FrmEnd end(&window, window.ShownGame(), window.ShownJournal());
        end.exec();
        next_ = end.Next();
        blnOpen_ = false;
    }

    void End() {
        signals_.setEnabled(false);
        ending_ = true;
        if (game_ != nullptr) game_->CloseWithoutBoxes();
        while (auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
            dialog->done(QDialog::Rejected);
        }
    }

    ClockSeededNumbers random_;
    LinuxDesktop desktop_;
    DesktopDisplay display_;
    DeferredComputer computer_;
    DeferredWastebasket wastebasket_;

    NextWindow next_ = NextWindow::Same;
    std::string strGamePath_;
    bool fromGame_ = false;
    bool blnOpen_ = false;  // ... to choose a saved game
    int exitStatus_ = 0;

    QSocketNotifier signals_;
    FrmGame* game_ = nullptr;  // while one is shown
    bool ending_ = false;      // whatever window is next
};

}  // namespace

int RunProgram(const std::string& strCommandLine) {
    QGuiApplication::setDesktopFileName("qarn");  // by which a desktop finds name and icon
    return Program().Run(strCommandLine);
}

}  // namespace qarn
