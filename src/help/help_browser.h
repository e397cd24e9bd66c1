#pragma once

#include <QStringList>
#include <QTextBrowser>

#include "help/help_file.h"

namespace qarn {

/// Shows the pages of a help file.
class HelpBrowser : public QTextBrowser {
    Q_OBJECT

public:
    /// `file` must outlive the browser.
    HelpBrowser(const HelpFile& file, QWidget* parent);

    /// Shows a topic; the start page when it is empty.
    void ShowTopic(const QString& topic);

    /// The name of the page on screen.
    QString PageName() const;

    /// Marks every place of these words on the page and brings the first one into view.
    void Highlight(const QStringList& words);

    /// Moves on to the next marked place, or back to the one before; from the last to the first.
    void GoToMark(bool forward);

    /// The size of texts and pictures in percent of their usual size: 50 to 300.
    void SetZoom(int percent);
    int Zoom() const { return zoom_; }

signals:
    void ZoomChanged(int percent);

protected:
    QVariant loadResource(int type, const QUrl& name) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    QVariant LoadPicture(const QString& name) const;
    void Mark(const QStringList& words);
    void FitColumn();

    const HelpFile& file_;
    QUrl page_;  // source() still names the page before while a page is loaded
    qreal usualFontSize_;
    int zoom_ = 100;
    QStringList markedWords_;
};

}  // namespace qarn
