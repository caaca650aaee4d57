#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <sstream>
#include <string>

namespace OrvWebBridge
{
    /**
     * @brief Expects Actual to match the golden file byte for byte (path from the repository root);
     * ORV_UPDATE_GOLDEN=1 rewrites the file instead (then review the diff).
     */
    inline void OrvExpectMatchesGolden(const std::string& Actual, const std::string& GoldenPath)
    {
        const char* Update = std::getenv("ORV_UPDATE_GOLDEN");
        if (Update && std::string(Update) == "1")
        {
            std::ofstream(GoldenPath, std::ios::binary) << Actual;
        }
        std::ifstream Stream(GoldenPath, std::ios::binary);
        ASSERT_TRUE(Stream) << GoldenPath << " is missing (run from the repository root)";
        std::ostringstream Expected;
        Expected << Stream.rdbuf();
        EXPECT_EQ(Actual, Expected.str()) << "differs from " << GoldenPath;
    }
} // namespace OrvWebBridge
