#pragma once

#include "Core/Ports/IOrvCatalogAccount.h"
#include "Core/Ports/IOrvLog.h"

namespace OrvWebBridge
{
    class FOrvWebPanelSession;

    /**
     * @brief Turns the account's download-queue and library notifications into the page's events:
     * "downloader.queue.updated", "downloader.queue.progress", "downloader.queue.finished" and
     * "library.updated". Game thread.
     */
    class FOrvAccountEventRelay : public IOrvCatalogAccountEvents
    {
    public:
        FOrvAccountEventRelay(FOrvWebPanelSession& InSession, IOrvLog& InLog) : Session(InSession), Log(InLog)
        {
        }

        /** Sends the first entry as the current download; an empty queue is logged and sends nothing. */
        void OnDownloadQueueUpdated(const std::vector<FOrvDownloadQueueEntry>& Queue) override;
        void OnDownloadProgress(double Progress) override;
        void OnDownloadQueueFinished() override;
        void OnLibraryUpdated() override;

    private:
        FOrvWebPanelSession& Session;
        IOrvLog& Log;
    };
} // namespace OrvWebBridge
