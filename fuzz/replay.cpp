#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <iostream>
#include <vector>

#include "support/temp_folder.h"
#include "target.h"

namespace qarn {
namespace {

// The inputs that lie in the tree: what the fuzzing starts from, and what it has found.
std::vector<std::string> Inputs() {
    std::vector<std::string> inputs;
    for (const char* folder : {QARN_CORPUS, QARN_FINDINGS}) {
        if (!std::filesystem::is_directory(folder)) continue;
        for (const auto& entry : std::filesystem::directory_iterator(folder)) {
            inputs.push_back(entry.path());
        }
    }
    std::sort(inputs.begin(), inputs.end());
    return inputs;
}

TEST(Inputs, ComeToNoHarm) {
    const std::vector<std::string> inputs = Inputs();
    ASSERT_FALSE(inputs.empty());
    for (const std::string& path : inputs) {
        std::cout << path << std::endl;  // the last one, should the target end the process
        const std::string input = ReadFile(path);
        LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(input.data()), input.size());
    }
}

}  // namespace
}  // namespace qarn
