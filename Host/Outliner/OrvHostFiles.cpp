#include "Host/Outliner/OrvHostFiles.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

namespace OrvWebBridge
{
    bool FOrvHostFiles::SaveFileDialog(const FOrvSaveDialogRequest& Request,
                                       std::vector<std::string>& OutFiles)
    {
        OutFiles.clear();
        if (DialogAnswer)
        {
            if (DialogAnswer->empty())
            {
                return false;
            }
            OutFiles.push_back(*DialogAnswer);
            return true;
        }
        OutFiles.push_back((std::filesystem::path(Request.DefaultPath) / Request.DefaultFile).string());
        return true;
    }

    bool FOrvHostFiles::SaveStringToFile(std::string_view Text, const std::string& FilePath)
    {
        LastError.clear();
        LastSavedPath.reset();
        bLastFailureWasExistingFile = false;
        const auto Fail = [&](const std::string& Why)
        {
            LastError = Why;
            return false;
        };
        const auto Succeed = [&]()
        {
            LastSavedPath = FilePath;
            return true;
        };

        // The temporary file sits next to the target so that the final step is a rename within one file
        // system.
        const std::filesystem::path Target(FilePath);
        const std::filesystem::path Folder = Target.has_parent_path() ? Target.parent_path() : ".";
        std::string TempName = ".";
        TempName += Target.filename().string();
        TempName += ".XXXXXX";
        std::string TempPath = (Folder / TempName).string();
        const int File = mkstemp(TempPath.data());
        if (File < 0)
        {
            return Fail(std::string("cannot create a file in ") + Folder.string() + ": " +
                        std::strerror(errno));
        }
        fchmod(File, 0644);
        std::size_t Written = 0;
        while (Written < Text.size())
        {
            const ssize_t Result = write(File, Text.data() + Written, Text.size() - Written);
            if (Result < 0 && errno == EINTR)
            {
                continue;
            }
            if (Result <= 0)
            {
                const std::string Why = std::strerror(errno);
                close(File);
                unlink(TempPath.c_str());
                return Fail("cannot write " + TempPath + ": " + Why);
            }
            Written += static_cast<std::size_t>(Result);
        }
        if (fsync(File) != 0 || close(File) != 0)
        {
            const std::string Why = std::strerror(errno);
            unlink(TempPath.c_str());
            return Fail("cannot write " + TempPath + ": " + Why);
        }

        if (bAllowOverwrite)
        {
            if (rename(TempPath.c_str(), FilePath.c_str()) != 0)
            {
                const std::string Why = std::strerror(errno);
                unlink(TempPath.c_str());
                return Fail("cannot write " + FilePath + ": " + Why);
            }
            return Succeed();
        }

        // link() fails when the target exists, so no file appearing meanwhile is ever replaced.
        if (link(TempPath.c_str(), FilePath.c_str()) == 0)
        {
            unlink(TempPath.c_str());
            return Succeed();
        }
        const int LinkError = errno;
        if (LinkError == EEXIST)
        {
            unlink(TempPath.c_str());
            bLastFailureWasExistingFile = true;
            return Fail(FilePath + " already exists");
        }
        // File systems without hard links: check, then rename.
        struct stat Existing;
        if (stat(FilePath.c_str(), &Existing) == 0)
        {
            unlink(TempPath.c_str());
            bLastFailureWasExistingFile = true;
            return Fail(FilePath + " already exists");
        }
        if (rename(TempPath.c_str(), FilePath.c_str()) != 0)
        {
            const std::string Why = std::strerror(errno);
            unlink(TempPath.c_str());
            return Fail("cannot write " + FilePath + ": " + Why);
        }
        return Succeed();
    }
} // namespace OrvWebBridge
