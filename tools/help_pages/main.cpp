#include <QGuiApplication>
#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <set>

#include "core/captions.h"
#include "help_pages/board_picture.h"
#include "help_pages/compile_chm.h"
#include "help_pages/fill.h"
#include "help_pages/html.h"
#include "help_pages/match_tables.h"
#include "help_pages/rule_tables.h"
#include "help_pages/scenario_page.h"
#include "scenarios/catalogue.h"
#include "scenarios/setup.h"
#include "window/keys.h"
#include "window/menu_commands.h"

namespace fs = std::filesystem;

namespace qarn {
namespace {

std::string ReadText(const fs::path& path) {
    std::ifstream stream(path, std::ios::binary);
    if (!stream) throw PageError(path.string() + ": can not be read");
    std::string text{std::istreambuf_iterator<char>(stream), {}};
    const auto beyondAscii = [](char letter) { return static_cast<unsigned char>(letter) >= 0x80; };
    if (std::any_of(text.begin(), text.end(), beyondAscii)) {
        throw PageError(path.string() + ": write characters beyond ASCII as entities");
    }
    return text;
}

void WriteText(const fs::path& path, const std::string& text) {
    std::ofstream stream(path, std::ios::binary);
    stream << text;
    if (!stream.flush()) throw PageError(path.string() + ": can not be written");
}

void SavePicture(const fs::path& folder, const std::string& name,
                 const std::function<QImage(int ratio)>& draw) {
    for (const auto& [suffix, ratio] : {std::pair{".png", 1}, std::pair{"@2x.png", 2}}) {
        const fs::path path = folder / "pictures" / (name + suffix);
        // The pages know the usual size; the picture itself bears none.
        QImage picture = draw(ratio);
        picture.setDotsPerMeterX(0);
        picture.setDotsPerMeterY(0);
        if (!picture.save(QString::fromStdString(path.string()), "PNG")) {
            throw PageError(path.string() + ": can not be written");
        }
    }
}

void DrawPictures(const fs::path& folder) {
    for (int scenario = 1; scenario <= scenarioCount; ++scenario) {
        const std::string code(NamesOfScenario(scenario).Code);
        const ScenarioData& data = DataOfScenario(scenario);
        SavePicture(folder, "board-" + code, [&](int ratio) { return DrawBoard(data, ratio); });
        SavePicture(folder, "small-" + code, [&](int ratio) { return DrawThumbnail(data, ratio); });
    }
    SavePicture(folder, "chip-1", [](int ratio) { return DrawChip(1, "TS", ratio); });
    SavePicture(folder, "chip-2", [](int ratio) { return DrawChip(2, "WA1", ratio); });
    SavePicture(folder, "chip-0", [](int ratio) { return DrawChip(0, "BT", ratio); });
}

// One row tells of all items that look alike.
std::string TextOf(const MenuCommand& command) {
    return std::string(command.Menu).append(command.Submenu).append(command.Caption);
}

// The first two cells of a row about a menu item: its caption and its shortcut key.
std::string MenuCells(const std::string& name, std::set<std::string>& told) {
    const MenuCommand* command = FindMenuCommand(name);
    if (command == nullptr) throw PageError("There is no menu item " + name);
    told.insert(TextOf(*command));
    const std::string shortcut(command->Shortcut);
    return "<td class=\"text\"><b>" + Escape(PlainCaption((command->Caption))) + "</b></td><td>" +
           (shortcut.empty() ? "&ndash;" : Escape(shortcut)) + "</td>";
}

// A row for each key of the window, or for those that do the same.
std::string KeyRows() {
    std::string rows;
    std::string keys;
    const auto commands = KeyCommands();
    for (std::size_t i = 0; i < commands.size(); ++i) {
        keys += (keys.empty() ? "" : ", ") + std::string(commands[i].Key);
        if (i + 1 < commands.size() && commands[i + 1].Told == commands[i].Told) continue;
        rows += Row({Escape(keys), "<td class=\"text\">" + Escape(commands[i].Told) + "</td>"});
        keys.clear();
    }
    return rows;
}

void CheckAllMenusAreTold(const std::set<std::string>& told) {
    for (const MenuCommand& command : MenuCommands()) {
        if (!command.Name.empty() && !told.contains(TextOf(command))) {
            throw PageError("No page tells of the menu item " + std::string(command.Name));
        }
    }
}

// What the list of files of the help compiler names: everything but its own two files.
std::string AllFiles(const fs::path& folder) {
    std::set<std::string> names;
    for (const auto& entry : fs::recursive_directory_iterator(folder)) {
        const std::string extension = entry.path().extension();
        if (!entry.is_regular_file() || extension == ".hhp" || extension == ".hhc") continue;
        names.insert(fs::relative(entry.path(), folder).string());
    }
    std::string list;
    for (const std::string& name : names) list += name + "\n";
    return list;
}

void MakeScenarioPages(const fs::path& source, const fs::path& folder) {
    const std::string page = ReadText(source / "scenarios" / "page.htm");
    for (int scenario = 1; scenario <= scenarioCount; ++scenario) {
        const std::string code(NamesOfScenario(scenario).Code);
        const std::string notes = ReadText(source / "scenarios" / (code + ".htm"));
        Fillers fillers = ScenarioFillers(scenario);
        fillers["notes"] = [&](const std::string&) { return notes; };
        const std::string name = ScenarioPageName(scenario);
        WriteText(folder / name, Fill(name, page, fillers));
    }
}

void MakePages(const fs::path& source, const fs::path& matches, const fs::path& folder) {
    fs::remove_all(folder);
    fs::create_directories(folder / "pictures");
    fs::copy(source / "pictures", folder / "pictures", fs::copy_options::recursive);
    MakeScenarioPages(source, folder);

    std::set<std::string> toldMenus;
    const Fillers fillers{
        {"odds", [](const std::string&) { return OddsTable(); }},
        {"terrain", [](const std::string&) { return TerrainTable(); }},
        {"special-movers", [](const std::string&) { return SpecialMoverTable(); }},
        {"strength", [&](const std::string&) { return StrengthTable(matches); }},
        {"balance", [&](const std::string&) { return BalanceTable(matches); }},
        {"scenarios", [](const std::string&) { return ScenarioOverview(); }},
        {"scenario-contents", [](const std::string&) { return ScenarioContents(); }},
        {"menu", [&](const std::string& name) { return MenuCells(name, toldMenus); }},
        {"keys", [](const std::string&) { return KeyRows(); }},
        {"files", [&](const std::string&) { return AllFiles(folder); }},
    };
    std::set<fs::path> texts;
    for (const auto& entry : fs::directory_iterator(source)) {
        if (entry.is_regular_file() && entry.path().extension() != ".hhp")
            texts.insert(entry.path());
    }
    for (const fs::path& path : texts) {
        const std::string name = path.filename();
        WriteText(folder / name, Fill(name, ReadText(path), fillers));
    }
    CheckAllMenusAreTold(toldMenus);
    DrawPictures(folder);
    WriteText(folder / "help.hhp", Fill("help.hhp", ReadText(source / "help.hhp"), fillers));
}

}  // namespace
}  // namespace qarn

int main(int argc, char* argv[]) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    if (argc != 4 && argc != 6) {
        std::fputs("usage: make_help PAGES MATCHES FILLED_PAGES [CHMCMD HELP_FILE]\n", stderr);
        return 2;
    }
    try {
        qarn::MakePages(argv[1], argv[2], argv[3]);
        if (argc == 6) qarn::CompileChm(argv[4], argv[3], argv[5]);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "make_help: %s\n", error.what());
        return 1;
    }
    return 0;
}
