#include "Host/Outliner/OrvHostEnvironment.h"

#include <ctime>

namespace OrvWebBridge
{
    std::string FOrvHostEnvironment::GetLocalDate() const
    {
        const std::time_t Now = std::time(nullptr);
        std::tm Local{};
        localtime_r(&Now, &Local);
        char Buffer[16];
        const std::size_t Length = std::strftime(Buffer, sizeof(Buffer), "%Y-%m-%d", &Local);
        return std::string(Buffer, Length);
    }
} // namespace OrvWebBridge
