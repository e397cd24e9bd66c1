#include "ui/qt_ports.h"

#include <QFile>
#include <QFileDialog>
#include <QInputDialog>
#include <QMessageBox>

#include "ui/text.h"
#include "ui/window_place.h"

namespace qarn {
namespace {

constexpr auto programTitle = "Thornmere Series Tactical Game";
constexpr auto gameFiles = "Tactical Game Files (*.tgf)";

struct BoxButtons {
    QMessageBox::StandardButtons shown;
    QMessageBox::StandardButton preferred;
    QMessageBox::StandardButton escape;
};

BoxButtons ButtonsFor(Buttons offered) {
    switch (offered) {
        case Buttons::YesNo:
            return {QMessageBox::Yes | QMessageBox::No, QMessageBox::Yes, QMessageBox::No};
        case Buttons::RetryCancel:
            return {QMessageBox::Retry | QMessageBox::Cancel, QMessageBox::Retry,
                    QMessageBox::Cancel};
        case Buttons::OK:
            break;
    }
    return {QMessageBox::Ok, QMessageBox::Ok, QMessageBox::Ok};
}

Answer AnswerOf(int button) {
    switch (button) {
        case QMessageBox::Yes:
            return Answer::Yes;
        case QMessageBox::No:
            return Answer::No;
        case QMessageBox::Retry:
            return Answer::Retry;
        case QMessageBox::Cancel:
            return Answer::Cancel;
        default:
            return Answer::OK;
    }
}

QString TitleOf(const std::string& title) {
    return title.empty() ? QString(programTitle) : ToQt(title);
}

std::string ChosenFile(const QFileDialog& dialog) {
    return QFile::encodeName(dialog.selectedFiles().constFirst()).toStdString();
}

// A box has its size, and its place over the window, once it is shown.
class PlacedBox : public QMessageBox {
public:
    PlacedBox(QWidget* window, const std::vector<QRect>& keptClear)
        : QMessageBox(window), keptClear_(keptClear) {}

protected:
    void showEvent(QShowEvent* event) override {
        QMessageBox::showEvent(event);
        const QRect place = PlaceOfBox(*parentWidget(), geometry(), keptClear_);
        if (place != geometry()) setGeometry(place);
    }

private:
    std::vector<QRect> keptClear_;
};

}  // namespace

QtDialogs::QtDialogs(QWidget* window, std::function<void()> beforeBox, TellAnswered tellAnswered,
                     KeptClear keptClear)
    : window_(window),
      beforeBox_(std::move(beforeBox)),
      tellAnswered_(std::move(tellAnswered)),
      keptClear_(std::move(keptClear)) {}

// Runs a dialog over the window, which afterwards has the keyboard again, without a window manager
// too.
int QtDialogs::Run(QDialog& dialog) {
    const int result = dialog.exec();
    if (givenUp_) throw DialogGivenUp();
    dialog.parentWidget()->activateWindow();
    return result;
}

Answer QtDialogs::Ask(const MessageBox& box) {
    if (givenUp_) return Answer::OK;  // it tells of what was given up
    beforeBox_();
    const BoxButtons buttons = ButtonsFor(box.Offered);
    PlacedBox widget(window_, keptClear_());
    widget.setWindowTitle(TitleOf(box.Title));
    widget.setTextFormat(Qt::PlainText);
    widget.setText(ToQt(box.Text));
    if (box.Shown == Icon::Information) widget.setIcon(QMessageBox::Information);
    widget.setStandardButtons(buttons.shown);
    widget.setDefaultButton(box.DeclinedByDefault ? buttons.escape : buttons.preferred);
    widget.setEscapeButton(buttons.escape);
    return AnswerOf(Run(widget));
}

std::string QtDialogs::AskSaveFileName(const std::string& path) {
    beforeBox_();
    QFileDialog dialog(window_, "Save As", {}, gameFiles);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix("tgf");
    dialog.selectFile(QFile::decodeName(path.c_str()));
    return Run(dialog) == QDialog::Accepted ? ChosenFile(dialog) : std::string();
}

std::string QtDialogs::AskOpenFileName(const std::string& folder) {
    beforeBox_();
    QFileDialog dialog(window_, "Open", QFile::decodeName(folder.c_str()), gameFiles);
    dialog.setFileMode(QFileDialog::ExistingFile);
    return Run(dialog) == QDialog::Accepted ? ChosenFile(dialog) : std::string();
}

std::string QtDialogs::InputPrompt(const std::string& text, const std::string& title,
                                   const std::string& prefilled) {
    beforeBox_();
    QInputDialog dialog(window_);
    dialog.setWindowTitle(TitleOf(title));
    dialog.setLabelText(ToQt(text));
    dialog.setTextValue(ToQt(prefilled));
    return Run(dialog) == QDialog::Accepted ? dialog.textValue().toStdString() : std::string();
}

}  // namespace qarn
