#include "Host/Runtime/OrvInputFile.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace OrvWebBridge
{
    namespace
    {
        std::string OrvInputFileSystemError(const std::string& Name, const char* What)
        {
            return Name + ": " + What + ": " + std::strerror(errno);
        }

        std::string OrvInputFileTooLarge(const std::string& Name)
        {
            return Name + ": larger than the " + std::to_string(FOrvInputFile::MaxBytes >> 20) +
                   " MiB an input file may have";
        }

        // Reads to the end, but never more than MaxBytes + 1 bytes: one byte past the limit tells that the
        // input is too large without reading all of an endless one.
        bool OrvInputFileReadAll(int File, const std::string& Name, std::string& OutText,
                                 std::string& OutError)
        {
            constexpr std::size_t Chunk = 1 << 16;
            for (;;)
            {
                const std::size_t Used = OutText.size();
                if (Used > FOrvInputFile::MaxBytes)
                {
                    OutError = OrvInputFileTooLarge(Name);
                    return false;
                }
                const std::size_t Want = std::min(Chunk, FOrvInputFile::MaxBytes + 1 - Used);
                OutText.resize(Used + Want);
                const ssize_t Got = read(File, OutText.data() + Used, Want);
                if (Got < 0 && errno == EINTR)
                {
                    OutText.resize(Used);
                    continue;
                }
                if (Got < 0)
                {
                    OutText.resize(Used);
                    OutError = OrvInputFileSystemError(Name, "cannot read");
                    return false;
                }
                OutText.resize(Used + static_cast<std::size_t>(Got));
                if (Got == 0)
                {
                    return true;
                }
            }
        }
    } // namespace

    std::string FOrvInputFile::DisplayName(const std::string& Path)
    {
        return Path == "-" ? "standard input" : Path;
    }

    bool FOrvInputFile::Read(const std::string& Path, std::string& OutText, std::string& OutError)
    {
        OutText.clear();
        const std::string Name = DisplayName(Path);
        struct stat Info;
        if (Path == "-")
        {
            // Standard input is usually a pipe; a device other than a terminal (/dev/zero) is refused.
            if (fstat(STDIN_FILENO, &Info) != 0)
            {
                OutError = OrvInputFileSystemError(Name, "cannot read");
                return false;
            }
            if (!S_ISREG(Info.st_mode) && !S_ISFIFO(Info.st_mode) && !isatty(STDIN_FILENO))
            {
                OutError = Name + ": not a regular file, a pipe or a terminal";
                return false;
            }
            return OrvInputFileReadAll(STDIN_FILENO, Name, OutText, OutError);
        }

        // Non-blocking, so that opening a FIFO that nobody writes to returns at once (and is then refused).
        const int File = open(Path.c_str(), O_RDONLY | O_CLOEXEC | O_NOCTTY | O_NONBLOCK);
        if (File < 0)
        {
            OutError = OrvInputFileSystemError(Name, "cannot open");
            return false;
        }
        bool bOk = false;
        if (fstat(File, &Info) != 0)
        {
            OutError = OrvInputFileSystemError(Name, "cannot read");
        }
        else if (!S_ISREG(Info.st_mode))
        {
            OutError = Name + (S_ISDIR(Info.st_mode) ? ": is a directory" : ": not a regular file");
        }
        else if (static_cast<std::size_t>(Info.st_size) > MaxBytes)
        {
            OutError = OrvInputFileTooLarge(Name);
        }
        else
        {
            OutText.reserve(static_cast<std::size_t>(Info.st_size));
            bOk = OrvInputFileReadAll(File, Name, OutText, OutError);
        }
        close(File);
        if (!bOk)
        {
            OutText.clear();
        }
        return bOk;
    }
} // namespace OrvWebBridge
