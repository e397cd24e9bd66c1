#include "help_pages/compile_chm.h"

#include <QProcess>
#include <fstream>

#include "core/file_store.h"
#include "help_pages/fill.h"

namespace qarn {
namespace {

namespace fs = std::filesystem;

// Where a compiled help file holds the time of its making.
constexpr std::size_t headerStamp = 0x10;
constexpr std::size_t contentOffset = 0x58;
const std::string systemStampMark("\x0A\x00\x04\x00", 4);
constexpr std::size_t stampSize = 4;

void RunCompiler(const fs::path& chmcmd, const fs::path& folder) {
    QProcess compiler;
    compiler.setProcessChannelMode(QProcess::MergedChannels);
    compiler.setWorkingDirectory(QString::fromStdString(folder.string()));
    compiler.start(QString::fromStdString(chmcmd.string()), {"help.hhp"});
    if (!compiler.waitForFinished(-1)) {
        throw PageError(chmcmd.string() + ": " + compiler.errorString().toStdString());
    }
    const QString output = QString::fromUtf8(compiler.readAll());
    const bool complains = output.contains("Error:") || output.contains("Warning:");
    if (compiler.exitStatus() != QProcess::NormalExit || compiler.exitCode() != 0 || complains) {
        throw PageError("The help compiler complains:\n" + output.toStdString());
    }
}

std::string ReadAll(const fs::path& path) {
    std::ifstream stream(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

void ClearStamp(std::string& bytes, std::size_t at) {
    if (at + stampSize > bytes.size())
        throw PageError("Help.chm holds no time at byte " + std::to_string(at));
    bytes.replace(at, stampSize, stampSize, '\0');
}

// The second stamp stands in the file "#SYSTEM", which comes early in the contents, uncompressed.
void ClearStamps(std::string& bytes) {
    ClearStamp(bytes, headerStamp);
    std::size_t content = 0;
    for (std::size_t i = 4; i-- > 0;) {
        content = content << 8 | static_cast<unsigned char>(bytes.at(contentOffset + i));
    }
    const std::size_t mark = bytes.find(systemStampMark, content);
    if (mark == bytes.npos) throw PageError("Help.chm does not say when it was made");
    ClearStamp(bytes, mark + systemStampMark.size());
}

}  // namespace

void CompileChm(const fs::path& chmcmd, const fs::path& folder, const fs::path& target) {
    RunCompiler(chmcmd, folder);
    std::string bytes = ReadAll(folder / "Help.chm");
    if (bytes.empty()) throw PageError("The help compiler has made an empty file");
    ClearStamps(bytes);
    ReplaceFile(target.string(), bytes);
}

}  // namespace qarn
