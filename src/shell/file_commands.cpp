#include "shell/file_commands.h"

#include "core/game.h"

namespace qarn {
namespace {

const std::string gameExtension = ".tgf";

void CreateKey(const Ports& ports, const std::string& key) {
    if (!ports.fileTypes.CreateKey(key)) ports.dialogs.Tell("Error: Creating Key!");
}

bool WriteKey(const Ports& ports, const std::string& key, const std::string& value) {
    CreateKey(ports, key);
    return ports.fileTypes.SetDefaultValue(key, value);
}

bool WriteOpenCommand(const Ports& ports, const std::string& className,
                      const std::string& command) {
    const std::string shell = className + "\\shell";
    CreateKey(ports, shell);
    CreateKey(ports, shell + "\\open");
    return WriteKey(ports, shell + "\\open\\command", "\"" + command + "\"");
}

}  // namespace

void CreateFileType(const Ports& ports, const std::string& strExtension,
                    const std::string& strCommand, const std::string& strClassName,
                    const std::string& strDescription, const std::string& strIconPath) {
    const bool written = WriteKey(ports, strExtension, strClassName) &&
                         WriteKey(ports, strClassName, strDescription) &&
                         WriteKey(ports, strClassName + "\\DefaultIcon", strIconPath) &&
                         WriteOpenCommand(ports, strClassName, strCommand);
    if (!written) ports.dialogs.Tell("Error Setting String Value!");
}

void IsFileTypeRegistered(const Ports& ports, const std::string& strKey, bool& blnRegistered) {
    if (ports.fileTypes.DefaultValue(strKey)) blnRegistered = true;
}

void LoadFileTypeMark(Game& game) {
    bool blnRegistered = false;
    IsFileTypeRegistered(game.ports, gameExtension, blnRegistered);
    game.controls.mnuTGF.Checked = blnRegistered;
}

void mnuTGF_Click(Game& game) {
    MenuState& mnuTGF = game.controls.mnuTGF;
    if (mnuTGF.Checked) {
        game.ports.help.ShowHelp("Troubleshooting.htm#Remove");
        return;
    }
    CreateFileType(game.ports, gameExtension, game.ports.folders.program + "/qarn", "tgf_ext",
                   "Tactical Game File", "");
    mnuTGF.Checked = true;
    game.ports.dialogs.Tell("The TGF file extension has been associated with the program.");
}

}  // namespace qarn
