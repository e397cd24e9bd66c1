#pragma once

#include <QMainWindow>
#include <QSplitter>
#include <QTabWidget>
#include <QToolBar>

#include "core/ports.h"
#include "help/contents_tree.h"
#include "help/help_browser.h"
#include "help/search_pane.h"

namespace qarn {

/// The window of the help viewer: contents and search at the left, the page at the right.
class HelpWindow : public QMainWindow {
    Q_OBJECT

public:
    /// `file` and `settings` must outlive the window.
    HelpWindow(const HelpFile& file, SettingsStore& settings);

    /// Shows a topic; the start page when it is empty.
    void ShowTopic(const QString& topic) { browser_->ShowTopic(topic); }

    /// Shows a topic and brings the window in front of all others.
    void BringUp(const QString& topic);

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    QAction* AddAction(QMenu* menu, const QString& text, const QKeySequence& key);
    void AddFileMenu();
    void AddGoMenu();
    void AddViewMenu();
    void AddSearchMenu();
    void FollowTabs();
    void ShowSearch();
    void FollowPage();
    void RestorePlace();
    void StorePlace();

    SettingsStore& settings_;
    QSplitter* splitter_;
    QTabWidget* tabs_;
    ContentsTree* contents_;
    SearchPane* search_;
    HelpBrowser* browser_;
    QToolBar* bar_;
};

}  // namespace qarn
