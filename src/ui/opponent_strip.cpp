#include "ui/opponent_strip.h"

#include <utility>

#include "ui/note_look.h"

namespace qarn {
namespace {

constexpr int worthShowing = 150;  // milliseconds of thinking

}  // namespace

OpponentStrip::OpponentStrip(QWidget* parent) : StatusLine(parent) {
    setObjectName("opponentStrip");
    LookLikeNote(*this);
    setMargin(2);
    hide();
    time_.setObjectName("told");
    time_.setSingleShot(true);
    time_.callOnTimeout(this, &OpponentStrip::ShowNext);
    patience_.setObjectName("patience");
    patience_.setSingleShot(true);
    patience_.setInterval(worthShowing);
    patience_.callOnTimeout(this, [this] {
        if (!time_.isActive()) Put(thinking_);
    });
}

void OpponentStrip::Tell(const QString& text, int milliseconds) {
    milliseconds_ = milliseconds;
    if (milliseconds > 0) {
        texts_ << text;
        if (!time_.isActive()) ShowNext();
        return;
    }
    texts_.clear();
    time_.stop();
    const QString before = std::exchange(last_, text);
    Put(before.isEmpty() ? text : before + " " + text);
}

void OpponentStrip::ShowNext() {
    if (texts_.isEmpty()) {
        Put(patience_.isActive() ? QString() : thinking_);
    } else {
        time_.start(milliseconds_);
        Put(texts_.takeFirst());
    }
}

void OpponentStrip::ShowThinking(const QString& text) {
    if (text == thinking_) return;
    const bool stands = !isHidden() && this->text() == thinking_;
    thinking_ = text;
    patience_.stop();
    if (!text.isEmpty()) {
        patience_.start();
        last_.clear();
    }
    if (stands) Put({});
}

void OpponentStrip::Dismiss() {
    texts_.clear();
    last_.clear();
    time_.stop();
    if (!isHidden()) Put({});
}

void OpponentStrip::Put(const QString& text) {
    setVisible(!text.isEmpty());
    StatusLine::Tell(text);
    emit Changed();
}

}  // namespace qarn
