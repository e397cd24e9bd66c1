#include "help/help_browser.h"

#include <QImage>
#include <QScrollBar>
#include <QTextBlock>
#include <QWheelEvent>
#include <algorithm>

#include "help/topic.h"

namespace qarn {
namespace {

// What the style sheets leave to the viewer.
struct PageColors {
    QColor paper, ink, link, mark;
};
constexpr PageColors lightPage{
    {0xFF, 0xFF, 0xFF}, {0x22, 0x22, 0x22}, {0x1F, 0x4E, 0x99}, {0xFF, 0xE5, 0x6B}};
constexpr PageColors darkPage{
    {0x20, 0x20, 0x23}, {0xE2, 0xDE, 0xD4}, {0x8F, 0xB8, 0xF5}, {0x6E, 0x56, 0x00}};
constexpr auto lightSheet = "style.css";
constexpr auto darkSheet = "dark.css";

constexpr qreal margin = 20;
constexpr int widestColumn = 780;

bool IsDark(const QPalette& palette) {
    return palette.color(QPalette::Base).lightness() < palette.color(QPalette::Text).lightness();
}

const PageColors& ColorsOf(const QWidget& widget) {
    return IsDark(widget.palette()) ? darkPage : lightPage;
}

// The pages bring colours of their own, dark ones where the desktop's are.
void UsePaper(QWidget& widget) {
    const PageColors& colors = ColorsOf(widget);
    QPalette palette = widget.palette();
    palette.setColor(QPalette::Base, colors.paper);
    palette.setColor(QPalette::Text, colors.ink);
    palette.setColor(QPalette::Link, colors.link);
    palette.setColor(QPalette::LinkVisited, colors.link);
    widget.setPalette(palette);
}

QString MissingPage(const QString& name) {
    return "<html><head><title>Page not found</title></head><body><h1>Page not found</h1><p>The "
           "help file has no page &ldquo;" +
           name.toHtmlEscaped() + "&rdquo;.</p></body></html>";
}

// "board.png" has a twin "board@2x.png" with twice as many pixels for finer screens.
QString TwinName(QString name) { return name.insert(name.lastIndexOf('.'), "@2x"); }

QImage ReadPicture(const HelpFile& file, const QString& name) {
    const std::string* bytes = file.Find(name.toStdString());
    if (bytes == nullptr) return {};
    return QImage::fromData(QByteArray::fromStdString(*bytes));
}

}  // namespace

HelpBrowser::HelpBrowser(const HelpFile& file, QWidget* parent)
    : QTextBrowser(parent), file_(file), usualFontSize_(font().pointSizeF()) {
    UsePaper(*this);
    setFrameShape(QFrame::NoFrame);
    document()->setDocumentMargin(margin);
    setLineWrapMode(QTextEdit::FixedPixelWidth);
    FitColumn();
    connect(this, &QTextBrowser::sourceChanged, this, [this] { Mark({}); });
}

void HelpBrowser::ShowTopic(const QString& topic) { setSource(UrlOfTopic(file_, topic)); }

QString HelpBrowser::PageName() const { return NameInFile(page_); }

QVariant HelpBrowser::loadResource(int type, const QUrl& name) {
    if (type == QTextDocument::HtmlResource) page_ = name;
    const QString inFile = NameInFile(page_.resolved(name));
    if (type == QTextDocument::ImageResource) return LoadPicture(inFile);

    const bool dark = inFile == lightSheet && IsDark(palette());
    const QString text = ReadPage(file_, dark ? darkSheet : inFile);
    if (text.isEmpty() && type == QTextDocument::HtmlResource) return MissingPage(inFile);
    return text;
}

// The picture in the very size it will have on the screen, from the finest one there is.
QVariant HelpBrowser::LoadPicture(const QString& name) const {
    const QImage picture = ReadPicture(file_, name);
    const qreal ratio = devicePixelRatioF();
    const QSize size = (QSizeF(picture.size()) * (zoom_ / 100.0) * ratio).toSize();
    QImage shown = picture;
    if (size != picture.size()) {
        const QImage twin = ReadPicture(file_, TwinName(name));
        shown = (twin.isNull() ? picture : twin)
                    .scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    }
    shown.setDevicePixelRatio(ratio);
    return shown;
}

void HelpBrowser::Highlight(const QStringList& words) {
    Mark(words);
    moveCursor(QTextCursor::Start);
    GoToMark(true);
}

void HelpBrowser::Mark(const QStringList& words) {
    markedWords_ = words;
    QList<ExtraSelection> marks;
    for (const QString& word : words) {
        QTextCursor place = document()->find(word);
        for (; !place.isNull(); place = document()->find(word, place)) {
            ExtraSelection selection;
            selection.cursor = place;
            selection.format.setBackground(ColorsOf(*this).mark);
            selection.format.setForeground(ColorsOf(*this).ink);
            marks.append(selection);
        }
    }
    std::sort(marks.begin(), marks.end(), [](const ExtraSelection& a, const ExtraSelection& b) {
        return a.cursor.selectionStart() < b.cursor.selectionStart();
    });
    setExtraSelections(marks);
}

void HelpBrowser::GoToMark(bool forward) {
    const QList<ExtraSelection> marks = extraSelections();
    if (marks.isEmpty()) return;
    const QTextCursor here = textCursor();
    QTextCursor next = forward ? marks.front().cursor : marks.back().cursor;
    if (forward) {
        const auto after = std::find_if(marks.begin(), marks.end(), [&](const auto& place) {
            return place.cursor.selectionStart() >= here.selectionEnd();
        });
        if (after != marks.end()) next = after->cursor;
    } else {
        const auto before = std::find_if(marks.rbegin(), marks.rend(), [&](const auto& place) {
            return place.cursor.selectionEnd() <= here.selectionStart();
        });
        if (before != marks.rend()) next = before->cursor;
    }
    setTextCursor(next);
    ensureCursorVisible();
}

void HelpBrowser::SetZoom(int percent) {
    const int zoom = std::clamp(percent, 50, 300);
    if (zoom == zoom_) return;
    zoom_ = zoom;
    QScrollBar* bar = verticalScrollBar();
    const double place = bar->maximum() > 0 ? double(bar->value()) / bar->maximum() : 0;
    QFont scaled = font();
    scaled.setPointSizeF(usualFontSize_ * zoom_ / 100);
    setFont(scaled);
    FitColumn();
    const QStringList words = markedWords_;
    reload();
    Mark(words);
    bar->setValue(static_cast<int>(place * bar->maximum()));
    emit ZoomChanged(zoom_);
}

// Lines too long to read are of no use: a wide window leaves paper free at the right.
void HelpBrowser::FitColumn() {
    setLineWrapColumnOrWidth(std::min(viewport()->width(), widestColumn * zoom_ / 100));
}

void HelpBrowser::resizeEvent(QResizeEvent* event) {
    FitColumn();
    QTextBrowser::resizeEvent(event);
}

void HelpBrowser::wheelEvent(QWheelEvent* event) {
    if (event->modifiers() != Qt::ControlModifier) return QTextBrowser::wheelEvent(event);
    if (event->angleDelta().y() != 0) SetZoom(zoom_ + (event->angleDelta().y() > 0 ? 10 : -10));
    event->accept();
}

}  // namespace qarn
