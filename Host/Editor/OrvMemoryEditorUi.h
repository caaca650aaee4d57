#pragma once

#include "Core/Common/OrvTypes.h"

#include <cstdint>
#include <functional>
#include <map>
#include <vector>

namespace OrvWebBridge
{
    /** @brief Which editor panel has the keyboard focus in the in-memory editor. */
    enum class EOrvMemoryFocus
    {
        Viewport,
        ContentBrowser,
    };

    /** @brief Handlers of one editor notification, called in the order they were added. */
    template <typename... TArgs> class TOrvMemoryEvent
    {
    public:
        std::uint64_t Add(std::function<void(TArgs...)> Handler)
        {
            Handlers.emplace(NextHandle, std::move(Handler));
            return NextHandle++;
        }

        void Remove(std::uint64_t Handle) { Handlers.erase(Handle); }

        void Broadcast(const TArgs&... Args) const
        {
            // Copied: a handler may add or remove handlers while it runs.
            const std::map<std::uint64_t, std::function<void(TArgs...)>> Current = Handlers;
            for (const auto& [Handle, Handler] : Current)
            {
                Handler(Args...);
            }
        }

    private:
        std::map<std::uint64_t, std::function<void(TArgs...)>> Handlers;
        std::uint64_t NextHandle = 1;
    };

    /** @brief The editor's panels around the level: the Content Browser's selection and the keyboard focus,
     * and the notifications the editor sends when a selection changes. */
    struct FOrvMemoryEditorUi
    {
        std::vector<FOrvAssetData> ContentBrowserSelection;
        EOrvMemoryFocus Focus = EOrvMemoryFocus::Viewport;
        TOrvMemoryEvent<> OnSelectionChanged;                                ///< NoteSelectionChange
        TOrvMemoryEvent<std::vector<FOrvAssetData>> OnAssetSelectionChanged; ///< Content Browser
    };
} // namespace OrvWebBridge
