#include "help_pages/html.h"

#include <QList>
#include <QString>
#include <cstdio>

namespace qarn {
namespace {

std::string Hex(Color color) {
    char hex[8];
    std::snprintf(hex, sizeof hex, "#%06X", color.rgb & 0xFFFFFFu);
    return hex;
}

}  // namespace

std::string Escape(std::string_view utf8) {
    const QString text = QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
    std::string html;
    for (const char32_t letter : text.toHtmlEscaped().toUcs4()) {
        if (letter < 0x80) {
            html += static_cast<char>(letter);
        } else {
            html += "&#" + std::to_string(static_cast<std::uint32_t>(letter)) + ";";
        }
    }
    return html;
}

std::string Address(std::string_view name) {
    std::string address;
    for (const char letter : name) {
        if (letter == ' ') {
            address += "%20";
        } else {
            address += letter;
        }
    }
    return address;
}

std::string Row(std::initializer_list<std::string> cells, std::string_view cell) {
    const std::string tag(cell);
    std::string row = "<tr>";
    for (const std::string& content : cells) {
        // A cell may bring its own tag, with colours or alignment.
        row += content.starts_with("<td") ? content : "<" + tag + ">" + content + "</" + tag + ">";
    }
    return row + "</tr>\n";
}

std::string Table(std::string_view cssClass, std::string_view rows) {
    return "<table class=\"" + std::string(cssClass) + "\" cellspacing=\"0\">\n" +
           std::string(rows) + "</table>\n";
}

std::string InColors(Color background, Color text, std::string_view html) {
    return "<td style=\"background-color:" + Hex(background) + "; color:" + Hex(text) + "\"><b>" +
           std::string(html) + "</b></td>";
}

}  // namespace qarn
