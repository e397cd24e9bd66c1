#include "ui/frm_splash.h"

#include <QFile>
#include <QHBoxLayout>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <QValidator>
#include <utility>

#include "core/code_page.h"
#include "ui/scenario_picture.h"
#include "ui/text.h"
#include "ui/window_icon.h"

namespace qarn {
namespace {

constexpr int gap = 12;
constexpr int pictureSquare = 20;  // pixels

// Takes only characters that a game file can hold.
class StorableText : public QValidator {
public:
    using QValidator::QValidator;

    State validate(QString& text, int&) const override {
        return CanStore(text.toStdString()) ? Acceptable : Invalid;
    }
};

void Enlarge(QWidget& widget, double factor) {
    QFont font = widget.font();
    font.setPointSizeF(font.pointSizeF() * factor);
    font.setBold(true);
    widget.setFont(font);
}

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
    Lay();
    Connect();
    Form_Load(window_);
    folder_.addPath(FileNameToQt(window_.controls.fileLoad.Path));
    BringUpToDate();
}

void FrmSplash::Prepare(bool blnOpen) {
    PrepareStartWindow(window_, blnOpen);
    BringUpToDate();
}

void FrmSplash::reject() { Run(cmdExit_Click); }

// ---- Layout ----

void FrmSplash::Lay() {
    Enlarge(lblProgramName_, 1.7);
    lblProgramName_.setAlignment(Qt::AlignCenter);
    auto* all = new QVBoxLayout(this);
    all->setContentsMargins(2 * gap, 2 * gap, 2 * gap, 2 * gap);
    all->setSpacing(gap);
    all->addWidget(&lblProgramName_);
    all->addLayout(LayNewGame());
    all->addLayout(LayScenarios(), 1);
    all->addLayout(LaySavedGames(), 1);
    all->addLayout(LayBottom());
    resize(720, 520);
}

QLayout* FrmSplash::LayNewGame() {
    lblInstructions_.setBuddy(&txtNewFilePath_);
    txtNewFilePath_.setValidator(new StorableText(&txtNewFilePath_));
    txtNewFilePath_.setMaxLength(static_cast<int>(window_.controls.txtNewFilePath.MaxLength));
    auto* line = new QHBoxLayout;
    line->addWidget(&txtNewFilePath_, 1);
    line->addWidget(&chkComputer_);
    line->addWidget(&cmdNew_);
    auto* part = new QVBoxLayout;
    part->addWidget(&lblInstructions_);
    part->addLayout(line);
    return part;
}

QLayout* FrmSplash::LayScenarios() {
    for (const std::string& title : window_.controls.lstScenarios.List) {
        lstScenarios_.addItem(ToQt(title));
    }
    lstScenarios_.setAccessibleName("Scenarios");
    lblScenarioBackground_.setWordWrap(true);
    lblScenarioBackground_.setAlignment(Qt::AlignTop);
    auto* story = new QVBoxLayout;
    story->addWidget(&picture_);
    story->addWidget(&lblScenarioBackground_, 1);
    auto* part = new QHBoxLayout;
    part->addWidget(&lstScenarios_, 1);
    part->addLayout(story);
    return part;
}

QLayout* FrmSplash::LaySavedGames() {
    fileLoad_.setAccessibleName("Saved games");
    txtBackGround_.setReadOnly(true);
    txtBackGround_.setAccessibleName("Program background");
    auto* buttons = new QVBoxLayout;
    buttons->addWidget(&cmdLoad_);
    buttons->addWidget(&cmdDelete_);
    buttons->addStretch();
    auto* files = new QHBoxLayout;
    files->addWidget(&fileLoad_, 1);
    files->addWidget(&txtBackGround_, 1);  // in the place of the list
    files->addLayout(buttons);
    lblYouAre_.setBuddy(&txtLocation_);
    auto* location = new QHBoxLayout;
    location->addWidget(&lblYouAre_);
    location->addWidget(&txtLocation_, 1);
    location->addWidget(&cmdBrowse_);
    auto* part = new QVBoxLayout;
    part->addLayout(files, 1);
    part->addLayout(location);
    return part;
}

QLayout* FrmSplash::LayBottom() {
    auto* part = new QHBoxLayout;
    part->addWidget(&cmdBackGround_);
    part->addStretch();
    part->addWidget(&cmdExit_);
    return part;
}

// ---- Events ----

void FrmSplash::RunOnClick(QPushButton& button, Handler handler) {
    connect(&button, &QPushButton::clicked, this, [this, handler] { Run(handler); });
}

void FrmSplash::Connect() {
    RunOnClick(cmdNew_, cmdNew_Click);
    RunOnClick(cmdLoad_, cmdLoad_Click);
    RunOnClick(cmdDelete_, cmdDelete_Click);
    RunOnClick(cmdBrowse_, cmdBrowse_Click);
    RunOnClick(cmdBackGround_, cmdBackGround_Click);
    RunOnClick(cmdExit_, cmdExit_Click);
    connect(&txtNewFilePath_, &QLineEdit::textEdited, this, [this](const QString& text) {
        window_.controls.txtNewFilePath.Text = text.toStdString();
        Run(txtNewFilePath_Change);
    });
    connect(&chkComputer_, &QCheckBox::toggled, this,
            [this](bool ticked) { window_.controls.chkComputer.Value = ticked; });
    connect(&lstScenarios_, &QListWidget::currentRowChanged, this, [this](int row) {
        if (updating_) return;
        window_.controls.lstScenarios.ListIndex = row;
        Run(lstScenarios_Click);
    });
    connect(&lstScenarios_, &QListWidget::itemDoubleClicked, this,
            [this] { Run(lstScenarios_DblClick); });
    connect(&fileLoad_, &QListWidget::currentRowChanged, this, [this](int row) {
        if (updating_) return;
        window_.controls.fileLoad.ListIndex = row;
        if (row >= 0) Run(fileLoad_Click);
    });
    connect(&fileLoad_, &QListWidget::itemDoubleClicked, this, [this] { Run(fileLoad_DblClick); });
    connect(&folder_, &QFileSystemWatcher::directoryChanged, this,
            [this] { Run(RefreshFileList); });
    for (QWidget* widget :
         {static_cast<QWidget*>(&txtNewFilePath_), static_cast<QWidget*>(&chkComputer_),
          static_cast<QWidget*>(&fileLoad_)}) {
        widget->installEventFilter(this);
    }
}

bool FrmSplash::eventFilter(QObject* object, QEvent* event) {
    const bool got = event->type() == QEvent::FocusIn;
    const bool lost = event->type() == QEvent::FocusOut;
    if (!updating_ && (got || lost)) {
        if (object == &txtNewFilePath_) {
            Run(got ? txtNewFilePath_GotFocus : txtNewFilePath_LostFocus);
        } else if (object == &fileLoad_) {
            Run(got ? fileLoad_GotFocus : fileLoad_LostFocus);
        } else if (got) {
            Run(chkComputer_GotFocus);
        }
    }
    return QDialog::eventFilter(object, event);
}

void FrmSplash::Run(Handler handler) {
    handler(window_);
    BringUpToDate();
}

// ---- Showing the controls ----

void FrmSplash::BringUpToDate() {
    ShowControls();
    MoveFocus();
    if (window_.Next != NextWindow::Same) QDialog::reject();
}

void FrmSplash::ShowControls() {
    const bool before = std::exchange(updating_, true);
    const StartControls& controls = window_.controls;
    setWindowTitle(ToQt(controls.Caption));
    Show(lblProgramName_, controls.lblProgramName);
    Show(lblInstructions_, controls.lblInstructions);
    Show(txtNewFilePath_, controls.txtNewFilePath);
    Show(cmdNew_, controls.cmdNew);
    chkComputer_.setText(ToQt(controls.chkComputer.Caption));
    chkComputer_.setVisible(controls.chkComputer.Visible);
    chkComputer_.setChecked(controls.chkComputer.Value);
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
    updating_ = before;
}

void FrmSplash::ShowScenario() {
    const StartControls& controls = window_.controls;
    const ListBox& list = controls.lstScenarios;
    lstScenarios_.setVisible(list.Visible);
    lstScenarios_.setEnabled(list.Enabled);
    lstScenarios_.setCurrentRow(list.ListIndex);
    Show(lblScenarioBackground_, controls.lblScenarioBackground);
    const bool chosen = list.Visible && list.ListIndex >= 0;
    picture_.setVisible(chosen);
    if (!chosen) return;
    picture_.setPixmap(ScenarioPicture(list.ListIndex + 1, pictureSquare, devicePixelRatioF()));
    lblScenarioBackground_.setFixedWidth(columnCount * pictureSquare);
}

void FrmSplash::ShowFiles() {
    const FileList& list = window_.controls.fileLoad;
    QStringList names;
    for (const std::string& name : list.List) names << FileNameToQt(name);
    QStringList shown;
    for (int row = 0; row < fileLoad_.count(); ++row) shown << fileLoad_.item(row)->text();
    if (names != shown) {
        fileLoad_.clear();
        fileLoad_.addItems(names);
    }
    fileLoad_.setCurrentRow(list.ListIndex);
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

QWidget* FrmSplash::WidgetOf(StartControl control) {
    switch (control) {
        case StartControl::txtNewFilePath:
            return &txtNewFilePath_;
        case StartControl::cmdNew:
            return &cmdNew_;
        case StartControl::chkComputer:
            return &chkComputer_;
        case StartControl::lstScenarios:
            return &lstScenarios_;
        case StartControl::fileLoad:
            return &fileLoad_;
        case StartControl::cmdLoad:
            return &cmdLoad_;
        case StartControl::cmdDelete:
            return &cmdDelete_;
        case StartControl::txtLocation:
            return &txtLocation_;
        case StartControl::cmdBrowse:
            return &cmdBrowse_;
        case StartControl::cmdBackGround:
            return &cmdBackGround_;
        case StartControl::txtBackGround:
            return &txtBackGround_;
        default:
            return &cmdExit_;
    }
}

}  // namespace qarn
