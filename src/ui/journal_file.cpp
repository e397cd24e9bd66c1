#include "ui/journal_file.h"

#include <QFileDialog>
#include <QFileInfo>

namespace qarn {

QString AskForJournalFile(QWidget* window, const std::string& strGamePath) {
    const QFileInfo game(QFile::decodeName(strGamePath.c_str()));
    QFileDialog dialog(window, "Save Journal", game.path(), "Text Files (*.txt)");
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix("txt");
    dialog.selectFile(game.completeBaseName() + ".txt");
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().constFirst() : QString();
}

}  // namespace qarn
