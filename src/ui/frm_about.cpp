#include "ui/frm_about.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "shell/about.h"
#include "ui/text.h"
#include "ui/window_icon.h"

namespace qarn {
namespace {

constexpr int textWidth = 460;
constexpr int pictureSize = 64;

QLabel* Paragraph(const Label& label) {
    auto* paragraph = new QLabel(ToQt(label.Caption));
    paragraph->setWordWrap(true);
    paragraph->setFixedWidth(textWidth);
    paragraph->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return paragraph;
}

QLabel* Heading(const Label& label) {
    auto* heading = new QLabel(ToQt(label.Caption));
    QFont font = heading->font();
    font.setBold(true);
    heading->setFont(font);
    return heading;
}

}  // namespace

FrmAbout::FrmAbout(QWidget* gameWindow) : QDialog(gameWindow) {
    const AboutControls controls;
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(ToQt(controls.Caption));

    auto* imgFile = new QLabel;
    imgFile->setPixmap(WindowIcon().pixmap(pictureSize));
    auto* head = new QHBoxLayout;
    head->addWidget(imgFile);
    head->addWidget(Heading(controls.lblProductNameVersion), 1);

    auto* cmdExit = new QPushButton(ToQt(controls.cmdExit.Caption));
    connect(cmdExit, &QPushButton::clicked, this, &QDialog::close);
    auto* bottom = new QHBoxLayout;
    bottom->addStretch();
    bottom->addWidget(cmdExit);

    auto* all = new QVBoxLayout(this);
    all->setSizeConstraint(QLayout::SetFixedSize);
    all->addLayout(head);
    all->addWidget(Heading(controls.lblCreditsHeading));
    all->addWidget(Paragraph(controls.lblCredits));
    all->addWidget(Heading(controls.lblLegalHeading));
    all->addWidget(Paragraph(controls.lblLegalNotices));
    all->addLayout(bottom);
}

}  // namespace qarn
