#include "ui/frm_yes_no_help.h"

#include <QGuiApplication>
#include <QHBoxLayout>
#include <QScreen>
#include <QStyle>
#include <QVBoxLayout>

#include "shell/run_start_event.h"
#include "ui/text.h"
#include "ui/window_icon.h"

namespace qarn {
namespace {

// In the pixels of the device, as the display counts them.
DisplayMode CurrentScreen() {
    const QScreen* screen = QGuiApplication::primaryScreen();
    if (screen == nullptr) return {};
    const QSize size = screen->size() * screen->devicePixelRatio();
    return {.Width = size.width(), .Height = size.height()};
}

}  // namespace

FrmYesNoHelp::FrmYesNoHelp(const std::string& helpFolder, DisplaySettings& display,
                           Computer& computer, const std::string& strCommandLine)
    : dialogs_(this, [] {}),
      help_(helpFolder, dialogs_),
      window_{.dialogs = dialogs_,
              .help = help_,
              .display = display,
              .computer = computer,
              .strCommandLine = strCommandLine,
              .screen = CurrentScreen()} {}

bool FrmYesNoHelp::Asks() {
    Run("Form_Load", Form_Load);
    if (window_.Visible) Lay();
    return window_.Visible;
}

void FrmYesNoHelp::Lay() {
    setWindowTitle(ToQt(window_.Caption));
    setWindowIcon(WindowIcon());
    auto* imgAlert = new QLabel;
    const int size = style()->pixelMetric(QStyle::PM_LargeIconSize);
    imgAlert->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxWarning).pixmap(size));
    auto* prompt = new QHBoxLayout;
    prompt->addWidget(imgAlert);
    auto* lblPrompt = new QLabel(ToQt(window_.lblPrompt.Caption));
    lblPrompt->setObjectName("lblPrompt");
    prompt->addWidget(lblPrompt, 1);

    cmdYes_.setObjectName("cmdYes");
    cmdNo_.setObjectName("cmdNo");
    cmdHelp_.setObjectName("cmdHelp");
    cmdYes_.setText(ToQt(window_.cmdYes.Caption));
    cmdNo_.setText(ToQt(window_.cmdNo.Caption));
    cmdHelp_.setText(ToQt(window_.cmdHelp.Caption));
    connect(&cmdYes_, &QPushButton::clicked, this, [this] { Run("cmdYes_Click", cmdYes_Click); });
    connect(&cmdNo_, &QPushButton::clicked, this, [this] { Run("cmdNo_Click", cmdNo_Click); });
    connect(&cmdHelp_, &QPushButton::clicked, this,
            [this] { Run("cmdHelp_Click", cmdHelp_Click); });
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    for (QPushButton* button : {&cmdYes_, &cmdNo_, &cmdHelp_}) buttons->addWidget(button);

    auto* all = new QVBoxLayout(this);
    all->addLayout(prompt);
    all->addLayout(buttons);
}

void FrmYesNoHelp::reject() { Run("cmdNo_Click", cmdNo_Click); }

void FrmYesNoHelp::Run(const char* event, void (*handler)(StartUpWindow&)) {
    RunEvent(window_, event, handler);
    if (window_.Next != NextWindow::Same) QDialog::reject();
}

}  // namespace qarn
