#include "help/help_window.h"

#include <QMenuBar>
#include <QScreen>
#include <QStyle>
#include <QTabBar>
#include <QToolBar>
#include <stdexcept>

namespace qarn {
namespace {

// Where the size and place of the window are kept.
const std::string application = "QARN";
const std::string section = "Help";
const std::string windowKey = "Window";
const std::string splitterKey = "Splitter";

constexpr QSize usualSize{1040, 720};
constexpr int usualLeftWidth = 250;
constexpr int zoomStep = 10;

QByteArray Stored(SettingsStore& settings, const std::string& key) {
    const std::string text = settings.Read(application, section, key, "");
    return QByteArray::fromBase64(QByteArray::fromStdString(text));
}

}  // namespace

HelpWindow::HelpWindow(const HelpFile& file, SettingsStore& settings)
    : settings_(settings),
      splitter_(new QSplitter(this)),
      tabs_(new QTabWidget(splitter_)),
      contents_(new ContentsTree(file, tabs_)),
      search_(new SearchPane(file, tabs_)),
      browser_(new HelpBrowser(file, splitter_)),
      bar_(addToolBar("Go")) {
    tabs_->addTab(contents_, "&Contents");
    tabs_->addTab(search_, "&Search");
    tabs_->setDocumentMode(true);
    splitter_->setStretchFactor(1, 1);
    splitter_->setChildrenCollapsible(false);
    setCentralWidget(splitter_);
    bar_->setMovable(false);
    bar_->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    setContextMenuPolicy(Qt::NoContextMenu);

    AddFileMenu();
    AddGoMenu();
    AddViewMenu();
    AddSearchMenu();
    FollowTabs();
    connect(contents_, &ContentsTree::TopicChosen, browser_, &HelpBrowser::ShowTopic);
    connect(search_, &SearchPane::PageChosen, this,
            [this](const QString& name, const QStringList& words) {
                browser_->ShowTopic(name);
                browser_->Highlight(words);
            });
    connect(browser_, &QTextBrowser::sourceChanged, this, &HelpWindow::FollowPage);
    RestorePlace();
    browser_->setFocus();
}

void HelpWindow::BringUp(const QString& topic) {
    ShowTopic(topic);
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
}

QAction* HelpWindow::AddAction(QMenu* menu, const QString& text, const QKeySequence& key) {
    QAction* action = menu->addAction(text);
    action->setShortcut(key);
    return action;
}

void HelpWindow::AddFileMenu() {
    QMenu* menu = menuBar()->addMenu("&File");
    QAction* close = AddAction(menu, "&Close", QKeySequence("Ctrl+W"));
    connect(close, &QAction::triggered, this, &QWidget::close);
}

void HelpWindow::AddGoMenu() {
    QMenu* menu = menuBar()->addMenu("&Go");
    QAction* back = AddAction(menu, "&Back", QKeySequence("Alt+Left"));
    QAction* forward = AddAction(menu, "&Forward", QKeySequence("Alt+Right"));
    QAction* start = AddAction(menu, "&Start Page", QKeySequence("Alt+Home"));
    back->setIcon(style()->standardIcon(QStyle::SP_ArrowBack));
    forward->setIcon(style()->standardIcon(QStyle::SP_ArrowForward));
    start->setIcon(style()->standardIcon(QStyle::SP_DirHomeIcon));
    bar_->addActions({back, forward, start});
    back->setEnabled(false);
    forward->setEnabled(false);
    connect(back, &QAction::triggered, browser_, &QTextBrowser::backward);
    connect(forward, &QAction::triggered, browser_, &QTextBrowser::forward);
    connect(start, &QAction::triggered, this, [this] { ShowTopic({}); });
    connect(browser_, &QTextBrowser::backwardAvailable, back, &QAction::setEnabled);
    connect(browser_, &QTextBrowser::forwardAvailable, forward, &QAction::setEnabled);
}

void HelpWindow::AddViewMenu() {
    QMenu* menu = menuBar()->addMenu("&View");
    QAction* contents = AddAction(menu, "&Contents", QKeySequence("Ctrl+T"));
    menu->addSeparator();
    QAction* larger = AddAction(menu, "&Larger", QKeySequence::ZoomIn);
    larger->setShortcuts({QKeySequence("Ctrl++"), QKeySequence("Ctrl+=")});
    QAction* smaller = AddAction(menu, "S&maller", QKeySequence("Ctrl+-"));
    QAction* usual = AddAction(menu, "&Usual Size", QKeySequence("Ctrl+0"));
    connect(contents, &QAction::triggered, this, [this] {
        tabs_->setCurrentWidget(contents_);
        contents_->setFocus();
    });
    connect(larger, &QAction::triggered, this,
            [this] { browser_->SetZoom(browser_->Zoom() + zoomStep); });
    connect(smaller, &QAction::triggered, this,
            [this] { browser_->SetZoom(browser_->Zoom() - zoomStep); });
    connect(usual, &QAction::triggered, this, [this] { browser_->SetZoom(100); });
    connect(browser_, &HelpBrowser::ZoomChanged, usual,
            [usual](int percent) { usual->setEnabled(percent != 100); });
    usual->setEnabled(false);
}

void HelpWindow::AddSearchMenu() {
    QMenu* menu = menuBar()->addMenu("S&earch");
    QAction* search = AddAction(menu, "&Search All Pages", QKeySequence("Ctrl+F"));
    QAction* next = AddAction(menu, "&Next Place", QKeySequence("F3"));
    QAction* previous = AddAction(menu, "&Previous Place", QKeySequence("Shift+F3"));
    connect(search, &QAction::triggered, this, &HelpWindow::ShowSearch);
    connect(next, &QAction::triggered, browser_, [this] { browser_->GoToMark(true); });
    connect(previous, &QAction::triggered, browser_, [this] { browser_->GoToMark(false); });
}

// Whoever opens the search wants to type, unless the arrow keys walk along the tabs.
void HelpWindow::FollowTabs() {
    connect(tabs_, &QTabWidget::tabBarClicked, this, [this](int tab) {
        if (tabs_->widget(tab) == search_) ShowSearch();
    });
    connect(tabs_, &QTabWidget::currentChanged, this, [this] {
        if (tabs_->currentWidget() == search_ && !tabs_->tabBar()->hasFocus()) ShowSearch();
    });
}

void HelpWindow::ShowSearch() {
    tabs_->setCurrentWidget(search_);
    search_->FocusField();
}

void HelpWindow::FollowPage() {
    const QString title = browser_->documentTitle();
    setWindowTitle(title.isEmpty() ? browser_->PageName() : title);
    contents_->Select(browser_->PageName());
}

void HelpWindow::RestorePlace() {
    if (!restoreGeometry(Stored(settings_, windowKey))) {
        resize(usualSize.boundedTo(screen()->availableSize()));
    }
    if (!splitter_->restoreState(Stored(settings_, splitterKey))) {
        splitter_->setSizes({usualLeftWidth, width() - usualLeftWidth});
    }
}

void HelpWindow::StorePlace() {
    try {
        settings_.Write(application, section, windowKey, saveGeometry().toBase64().toStdString());
        settings_.Write(application, section, splitterKey,
                        splitter_->saveState().toBase64().toStdString());
    } catch (const std::runtime_error&) {
        // The window closes; its place is not worth a box.
    }
}

void HelpWindow::closeEvent(QCloseEvent* event) {
    StorePlace();
    QMainWindow::closeEvent(event);
}

}  // namespace qarn
