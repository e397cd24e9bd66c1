#include "ui/offer_strip.h"

#include "ui/design.h"
#include "ui/note_look.h"
#include "ui/scaled_area.h"
#include "ui/status_line.h"

namespace qarn {

OfferStrip::OfferStrip(ScaledArea* area) : QFrame(area), take_(new QPushButton("Show them", this)) {
    setObjectName("offerStrip");
    LookLikeNote(*this);
    area->Place(this, opponentStripTwips);

    auto* text = new StatusLine(this);
    text->setForegroundRole(QPalette::ToolTipText);
    area->Place(text, offerTextTwips);
    text->Tell("Show sides, reach and odds, and let each side act with its own groups only?");

    take_->setObjectName("takeOffer");
    area->Place(take_, takeOfferTwips);
    auto* decline = new QPushButton("Not now", this);
    decline->setObjectName("declineOffer");
    area->Place(decline, declineOfferTwips);
    connect(take_, &QPushButton::clicked, this, &OfferStrip::Taken);
    connect(decline, &QPushButton::clicked, this, &OfferStrip::Declined);
}

}  // namespace qarn
