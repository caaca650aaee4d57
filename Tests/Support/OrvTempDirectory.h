#pragma once

#include <cstdlib>
#include <filesystem>
#include <string>

namespace OrvWebBridge
{
    /** @brief A fresh directory under the system's temporary one, removed with everything in it afterwards.
     */
    struct FOrvTempDirectory
    {
        FOrvTempDirectory()
        {
            std::string Pattern = (std::filesystem::temp_directory_path() / "orv-test-XXXXXX").string();
            Path = mkdtemp(Pattern.data());
        }
        FOrvTempDirectory(const FOrvTempDirectory&) = delete;
        FOrvTempDirectory& operator=(const FOrvTempDirectory&) = delete;
        ~FOrvTempDirectory() { std::filesystem::remove_all(Path); }

        std::filesystem::path Path;
    };
} // namespace OrvWebBridge
