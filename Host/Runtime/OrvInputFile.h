#pragma once

#include <cstddef>
#include <string>

namespace OrvWebBridge
{
    /**
     * @brief How the host reads every file it is given (scene, offline catalogue, card records): whole,
     * only from a regular file (standard input may also be a pipe or a terminal), and never more than
     * MaxBytes, so a device such as /dev/zero, a FIFO or a huge file cannot hang the host or exhaust its
     * memory.
     */
    struct FOrvInputFile
    {
        /** Far above any real scene or catalogue (10,000 actors take about 2 MiB). */
        static constexpr std::size_t MaxBytes = std::size_t{64} << 20;

        /** What errors call Path: "standard input" for "-", else Path itself. */
        static std::string DisplayName(const std::string& Path);

        /**
         * Reads the whole file into OutText; "-" reads standard input. On failure returns false and sets
         * OutError to a message that begins with the file's name ("room.json: not a regular file").
         */
        static bool Read(const std::string& Path, std::string& OutText, std::string& OutError);
    };
} // namespace OrvWebBridge
