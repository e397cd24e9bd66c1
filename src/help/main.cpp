#include <QApplication>
#include <QCommandLineParser>
#include <QIcon>
#include <QStyle>
#include <cstdio>
#include <cstdlib>
#include <utility>

#include "desktop/help_program.h"
#include "desktop/process_signals.h"
#include "help/viewer.h"

namespace {

// Qt ends the program when it finds no display; this says why in a line of our own.
void TellNoDisplay(QtMsgType type, const QMessageLogContext&, const QString&) {
    if (type != QtFatalMsg) return;
    std::fputs("qarn-help: there is no display to open a window on\n", stderr);
    std::_Exit(1);
}

}  // namespace

int main(int argc, char* argv[]) {
    qarn::FillClosedStreams();
    qarn::TellFullQuotas();
    qarn::HelpReader reader;
    const QtMessageHandler usual = qInstallMessageHandler(TellNoDisplay);
    QApplication application(argc, argv);
    qInstallMessageHandler(usual);
    QApplication::setApplicationName("qarn-help");
    QApplication::setApplicationDisplayName("Thornmere Series Tactical Game Help");
    QApplication::setApplicationVersion(QARN_VERSION);
    QApplication::setDesktopFileName("qarn");  // the help has no entry of its own
    QApplication::setWindowIcon(QIcon::fromTheme(
        "help-browser", application.style()->standardIcon(QStyle::SP_DialogHelpButton)));

    QCommandLineParser parser;
    parser.setApplicationDescription("Shows the help of the Thornmere Series Tactical Game.");
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addPositionalArgument(
        "file", "The help file, or a folder of its pages; without it the help beside this program.",
        "[FILE");
    parser.addPositionalArgument(
        "topic", "A page, such as \"Terrain Info.htm\", with \"#\" and an anchor where wanted.",
        "[TOPIC]]");
    parser.process(application);

    const QStringList arguments = parser.positionalArguments();
    if (arguments.size() > 2) {
        std::fputs("usage: qarn-help [FILE [TOPIC]]\n", stderr);
        return 2;
    }
    const std::string beside = qarn::HelpPathIn(QApplication::applicationDirPath().toStdString());
    return qarn::RunViewer(std::move(reader), arguments.value(0, QString::fromStdString(beside)),
                           arguments.value(1));
}
