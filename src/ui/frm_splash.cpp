#include "ui/frm_splash.h"

#include <QFile>
#include <QKeyEvent>
#include <utility>

#include "scenarios/balance.h"
#include "scenarios/sides_told.h"
#include "shell/run_start_event.h"
#include "ui/scenario_picture.h"
#include "ui/text.h"
#include "ui/window_icon.h"

namespace qarn {
namespace {

void Show(QPushButton& widget, const Button& button) {
    widget.setText(ToQt(button.Caption));
    widget.setEnabled(button.Enabled);
    widget.setVisible(button.Visible);
}

void Show(QLineEdit& widget, const TextBox& box) {
    const QString text = ToQt(box.Text);
    if (widget.text() != text) widget.setText(text);
    widget.setEnabled(box.Enabled);
    widget.setVisible(box.Visible);
    widget.setReadOnly(box.Locked);
}

void Show(QLabel& widget, const Label& label) {
    widget.setText(ToQt(label.Caption));
    widget.setVisible(label.Visible);
}

QString FileNameToQt(const std::string& name) {
    return QFile::decodeName(QByteArray::fromStdString(name));
}

}  // namespace

FrmSplash::FrmSplash(RandomNumbers& random, const DesktopPorts& desktop, Wastebasket& wastebasket)
    : dialogs_(this, [this] { ShowControls(); }),
      help_(desktop.folders.program, dialogs_),
      window_{
          .ports = {dialogs_, random, help_, desktop.settings, desktop.fileTypes, desktop.folders},
          .wastebasket = wastebasket} {
    setWindowIcon(WindowIcon());
    setWindowFlag(Qt::WindowMinimizeButtonHint);
    for (const NamedWidget& named : Widgets()) named.widget->setObjectName(named.name);
    Lay();
    Connect();
    Run("Form_Load", [](StartWindow& window) { Form_Load(window); });
    folder_.addPath(FileNameToQt(window_.controls.fileLoad.Path));
}

// A widget that goes gives the focus up, and its event would come to widgets that have gone before.
FrmSplash::~FrmSplash() { running_ = true; }

void FrmSplash::Prepare(bool blnOpen) {
    Run("PrepareStartWindow", [=](StartWindow& window) { PrepareStartWindow(window, blnOpen); });
}

void FrmSplash::reject() { Run("cmdExit_Click", cmdExit_Click); }

// ---- Events ----

void FrmSplash::RunOnClick(QPushButton& button, const Handler& handler) {
    const QString event = button.objectName() + "_Click";
    connect(&button, &QPushButton::clicked, this, [=, this] { Run(event, handler); });
}

void FrmSplash::Connect() {
    RunOnClick(cmdNew_, cmdNew_Click);
    RunOnClick(cmdLoad_, cmdLoad_Click);
    RunOnClick(cmdDelete_, cmdDelete_Click);
    RunOnClick(cmdBrowse_, cmdBrowse_Click);
    RunOnClick(cmdBackGround_, cmdBackGround_Click);
    RunOnClick(cmdExit_, cmdExit_Click);
    connect(&txtNewFilePath_, &QLineEdit::textEdited, this, [this](const QString& text) {
        Run("txtNewFilePath_Change", [&](StartWindow& window) {
            window.controls.txtNewFilePath.Text = text.toStdString();
            txtNewFilePath_Change(window);
        });
    });
    connect(&chkComputer_, &QCheckBox::clicked, this, [this](bool ticked) {
        Run("chkComputer_Click", [=](StartWindow& window) {
            window.controls.chkComputer.Value = ticked;
            chkComputer_Click(window);
        });
    });
    connect(&cboOpponent_, &QComboBox::activated, this, [this](int row) {
        Run("cboOpponent_Click", [=](StartWindow& window) {
            window.controls.cboOpponent.ListIndex = row;
            cboOpponent_Click(window);
        });
    });
    connect(&lstScenarios_, &ChoiceList::Chosen, this, [this](int row) {
        Run("lstScenarios_Click", [=](StartWindow& window) {
            window.controls.lstScenarios.ListIndex = row;
            lstScenarios_Click(window);
        });
    });
    connect(&lstScenarios_, &QListWidget::itemDoubleClicked, this,
            [this] { Run("lstScenarios_DblClick", lstScenarios_DblClick); });
    connect(&fileLoad_, &ChoiceList::Chosen, this, [this](int row) {
        Run("fileLoad_Click", [=](StartWindow& window) {
            window.controls.fileLoad.ListIndex = row;
            fileLoad_Click(window);
        });
    });
    connect(&fileLoad_, &QListWidget::itemDoubleClicked, this,
            [this] { Run("fileLoad_DblClick", fileLoad_DblClick); });
    connect(&folder_, &QFileSystemWatcher::directoryChanged, this, [this] {
        folderChanged_ = true;
        FollowFolder();
    });
    for (const NamedWidget& named : Widgets()) named.widget->installEventFilter(this);
}

bool FrmSplash::eventFilter(QObject* object, QEvent* event) {
    const bool got = event->type() == QEvent::FocusIn;
    if (got || event->type() == QEvent::FocusOut) RunOnFocus(*object, got);
    auto* button = qobject_cast<QPushButton*>(object);
    if (event->type() == QEvent::Shortcut && button != nullptr) {
        button->click();  // at once, where Qt waits a while
        return true;
    }
    return QDialog::eventFilter(object, event);
}

void FrmSplash::RunOnFocus(const QObject& widget, bool got) {
    const QString event = widget.objectName() + (got ? "_GotFocus" : "_LostFocus");
    if (&widget == &txtNewFilePath_) {
        Run(event, got ? txtNewFilePath_GotFocus : txtNewFilePath_LostFocus);
    } else if (&widget == &fileLoad_) {
        Run(event, got ? fileLoad_GotFocus : fileLoad_LostFocus);
    } else if ((&widget == &chkComputer_ || &widget == &cboOpponent_) && got) {
        Run(event, chkComputer_GotFocus);
    }
}

// Enter presses the button that has the focus, or else the default button, if there is one. Left to
// itself, Qt finds a default button where the controls have none.
void FrmSplash::keyPressEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter) {
        QDialog::keyPressEvent(event);
        return;
    }
    QWidget* pressed = focusWidget();
    if (qobject_cast<QPushButton*>(pressed) == nullptr) {
        pressed = WidgetOf(window_.controls.DefaultButton);
    }
    if (pressed != nullptr) static_cast<QPushButton*>(pressed)->click();
}

// One event at a time: while a box is open, the focus goes to and fro.
void FrmSplash::Run(const QString& event, const Handler& handler) {
    if (running_) return;
    running_ = true;
    RunEvent(window_, event.toStdString(), handler);
    running_ = false;
    ShowControls();
    MoveFocus();
    FollowFolder();
    if (window_.Next != NextWindow::Same) QDialog::reject();
}

void FrmSplash::FollowFolder() {
    if (running_ || !std::exchange(folderChanged_, false)) return;
    Run("fileLoad_Change", RefreshFileList);
}

// ---- Showing the controls ----

void FrmSplash::ShowControls() {
    const StartControls& controls = window_.controls;
    setWindowTitle(ToQt(controls.Caption));
    Show(lblProgramName_, controls.lblProgramName);
    Show(lblInstructions_, controls.lblInstructions);
    Show(txtNewFilePath_, controls.txtNewFilePath);
    txtNewFilePath_.setValidator(controls.txtNewFilePath.Storable ? storableText_ : nullptr);
    Show(lblReplaces_, controls.lblReplaces);
    Show(cmdNew_, controls.cmdNew);
    ShowPlayer();
    ShowScenario();
    ShowFiles();
    Show(cmdLoad_, controls.cmdLoad);
    Show(cmdDelete_, controls.cmdDelete);
    Show(lblYouAre_, controls.lblYouAre);
    Show(txtLocation_, controls.txtLocation);
    Show(cmdBrowse_, controls.cmdBrowse);
    Show(cmdBackGround_, controls.cmdBackGround);
    txtBackGround_.setVisible(controls.txtBackGround.Visible);
    txtBackGround_.setPlainText(ToQt(controls.txtBackGround.Text));
    Show(cmdExit_, controls.cmdExit);
    ShowDefaultButton();
}

void FrmSplash::ShowPlayer() {
    const StartControls& controls = window_.controls;
    chkComputer_.setText(ToQt(controls.chkComputer.Caption));
    chkComputer_.setVisible(controls.chkComputer.Visible);
    chkComputer_.setChecked(controls.chkComputer.Value);
    cboOpponent_.setCurrentIndex(controls.cboOpponent.ListIndex);
    cboOpponent_.setVisible(controls.cboOpponent.Visible);
    cboOpponent_.setAccessibleDescription(ToQt(controls.lblOpponent.Caption));
    Show(lblOpponent_, controls.lblOpponent);
}

void FrmSplash::ShowScenario() {
    const StartControls& controls = window_.controls;
    const ListBox& list = controls.lstScenarios;
    lstScenarios_.setVisible(list.Visible);
    lstScenarios_.setEnabled(list.Enabled);
    lstScenarios_.ShowChosen(list.ListIndex);
    Show(lblScenarioBackground_, controls.lblScenarioBackground);
    const bool chosen = list.Visible && list.ListIndex >= 0;
    picture_.setVisible(chosen);
    sides_.setVisible(chosen);
    balance_.setVisible(chosen);
    if (!chosen) return;
    const int scenario = list.ListIndex + 1;
    picture_.setPixmap(ScenarioPicture(scenario, pictureSquare, devicePixelRatioF()));
    sides_.setText(ToQt(ToldOfSide(scenario, 1) + '\n' + ToldOfSide(scenario, 2)));
    balance_.setText("Balance: " + ToQt(BalanceOfScenario(scenario)));
    // With the height that it takes the window grows where it has no room for all of them.
    for (QLabel* label : {&lblScenarioBackground_, &sides_, &balance_}) {
        constexpr int width = columnCount * pictureSquare;
        label->setFixedWidth(width);
        label->setMinimumHeight(label->heightForWidth(width));
    }
}

void FrmSplash::ShowFiles() {
    const FileList& list = window_.controls.fileLoad;
    QStringList games;
    for (std::size_t row = 0; row < list.List.size(); ++row) {
        games << FileNameToQt(list.List[row]) + '\n' + ToQt(list.Told[row]);
    }
    QStringList shown;
    for (int row = 0; row < fileLoad_.count(); ++row) shown << fileLoad_.item(row)->text();
    if (games != shown) {
        fileLoad_.clear();
        fileLoad_.addItems(games);
    }
    fileLoad_.ShowChosen(list.ListIndex);
    fileLoad_.setEnabled(list.Enabled);
    fileLoad_.setVisible(list.Visible);
}

void FrmSplash::ShowDefaultButton() {
    const StartControl button = window_.controls.DefaultButton;
    cmdNew_.setDefault(button == StartControl::cmdNew);
    cmdLoad_.setDefault(button == StartControl::cmdLoad);
    cmdExit_.setDefault(button == StartControl::cmdExit);
}

void FrmSplash::MoveFocus() {
    QWidget* previous = nullptr;
    for (const StartControl control : window_.controls.TabOrder) {
        QWidget* next = WidgetOf(control);
        if (previous != nullptr) setTabOrder(previous, next);
        previous = next;
    }
    const StartControl target = std::exchange(window_.controls.SetFocus, StartControl::None);
    if (target != StartControl::None) WidgetOf(target)->setFocus();
}

std::array<FrmSplash::NamedWidget, 13> FrmSplash::Widgets() {
    using enum StartControl;
    return {{{txtNewFilePath, &txtNewFilePath_, "txtNewFilePath"},
             {cmdNew, &cmdNew_, "cmdNew"},
             {chkComputer, &chkComputer_, "chkComputer"},
             {cboOpponent, &cboOpponent_, "cboOpponent"},
             {lstScenarios, &lstScenarios_, "lstScenarios"},
             {fileLoad, &fileLoad_, "fileLoad"},
             {cmdLoad, &cmdLoad_, "cmdLoad"},
             {cmdDelete, &cmdDelete_, "cmdDelete"},
             {txtLocation, &txtLocation_, "txtLocation"},
             {cmdBrowse, &cmdBrowse_, "cmdBrowse"},
             {cmdBackGround, &cmdBackGround_, "cmdBackGround"},
             {txtBackGround, &txtBackGround_, "txtBackGround"},
             {cmdExit, &cmdExit_, "cmdExit"}}};
}

QWidget* FrmSplash::WidgetOf(StartControl control) {
    for (const NamedWidget& named : Widgets()) {
        if (named.control == control) return named.widget;
    }
    return nullptr;
}

}  // namespace qarn
