#include "ui/text.h"

#include "core/captions.h"

namespace qarn {

QString ToQt(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()))
        .replace("\r\n", "\n");
}

QString ToLabelText(std::string_view text) { return ToQt(PlainText(text)); }

}  // namespace qarn
