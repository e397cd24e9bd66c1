#include <array>
#include <cctype>
#include <utility>

#include "help/help_file.h"

namespace qarn {
namespace {

std::string LowerCase(std::string_view text) {
    std::string lower(text);
    for (char& letter : lower) {
        letter = static_cast<char>(std::tolower(static_cast<unsigned char>(letter)));
    }
    return lower;
}

std::string Unescape(std::string_view html) {
    static constexpr std::array<std::pair<std::string_view, char>, 5> entities{
        {{"&amp;", '&'}, {"&lt;", '<'}, {"&gt;", '>'}, {"&quot;", '"'}, {"&#39;", '\''}}};
    std::string text;
    while (!html.empty()) {
        std::size_t length = 1;
        char letter = html.front();
        for (const auto& [entity, meaning] : entities) {
            if (html.starts_with(entity)) {
                length = entity.size();
                letter = meaning;
            }
        }
        text += letter;
        html.remove_prefix(length);
    }
    return text;
}

// The value of an attribute in double quotes, of a tag given without its brackets.
std::string Attribute(std::string_view tag, std::string_view name) {
    const std::string mark = " " + std::string(name) + "=\"";
    const std::size_t found = LowerCase(tag).find(mark);
    if (found == std::string::npos) return {};
    const std::string_view value = tag.substr(found + mark.size());
    return Unescape(value.substr(0, value.find('"')));
}

class ContentsParser {
public:
    explicit ContentsParser(std::string_view html) : rest_(html) {}

    /// Reads entries up to the end of the list, or of the text.
    std::vector<ContentsEntry> ReadList(int depth = 0) {
        std::vector<ContentsEntry> entries;
        std::string_view tag;
        while (NextTag(tag)) {
            const std::string name = LowerCase(tag.substr(0, tag.find(' ')));
            if (name == "/ul") {
                if (depth > 0) return entries;
            } else if (name == "ul" && depth < deepest) {
                AddList(entries, ReadList(depth + 1));
            } else if (name == "object" && ++count_ <= mostEntries) {
                entries.push_back(ReadObject());
            }
        }
        return entries;
    }

private:
    static constexpr int deepest = 20;
    static constexpr int mostEntries = 10000;

    bool NextTag(std::string_view& tag) {
        const std::size_t begin = rest_.find('<');
        const std::size_t end = rest_.find('>', begin);
        if (begin == rest_.npos || end == rest_.npos) return false;
        tag = rest_.substr(begin + 1, end - begin - 1);
        rest_.remove_prefix(end + 1);
        return true;
    }

    ContentsEntry ReadObject() {
        ContentsEntry entry;
        std::string_view tag;
        while (NextTag(tag) && LowerCase(tag) != "/object") {
            const std::string name = LowerCase(Attribute(tag, "name"));
            if (name == "name") entry.title = Attribute(tag, "value");
            if (name == "local") entry.page = Attribute(tag, "value");
        }
        return entry;
    }

    // A list belongs to the entry before it; the outermost list has none.
    static void AddList(std::vector<ContentsEntry>& entries, std::vector<ContentsEntry> list) {
        auto& target = entries.empty() ? entries : entries.back().entries;
        target.insert(target.end(), std::make_move_iterator(list.begin()),
                      std::make_move_iterator(list.end()));
    }

    std::string_view rest_;
    int count_ = 0;
};

}  // namespace

std::vector<ContentsEntry> ParseContents(std::string_view html) {
    return ContentsParser(html).ReadList();
}

}  // namespace qarn
