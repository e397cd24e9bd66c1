#include "help/viewer.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QMessageBox>
#include <memory>
#include <utility>

#include "desktop/settings_file.h"
#include "help/hand_over.h"
#include "help/help_window.h"

namespace qarn {
namespace {

std::unique_ptr<HelpFile> OpenHelpFile(const QString& path, HelpReader reader) {
    try {
        return std::make_unique<HelpFile>(path.toStdString(), std::move(reader));
    } catch (const HelpFileError& error) {
        QMessageBox box(QMessageBox::Critical, QApplication::applicationDisplayName(),
                        "The help file can not be opened.");
        box.setInformativeText(QString(error.what()) + "\n" + QDir::toNativeSeparators(path));
        box.setTextFormat(Qt::PlainText);
        box.exec();
        return nullptr;
    }
}

}  // namespace

int RunViewer(HelpReader reader, const QString& helpFilePath, const QString& topic) {
    const QString path = QFileInfo(helpFilePath).absoluteFilePath();
    HandOver handOver(path);
    if (handOver.GiveAway(topic)) return 0;

    const std::unique_ptr<HelpFile> file = OpenHelpFile(path, std::move(reader));
    if (!file) return 1;
    SettingsFile settings;
    HelpWindow window(*file, settings);
    QObject::connect(&handOver, &HandOver::TopicReceived, &window, &HelpWindow::BringUp);
    window.ShowTopic(topic);
    window.show();
    return QApplication::exec();
}

}  // namespace qarn
