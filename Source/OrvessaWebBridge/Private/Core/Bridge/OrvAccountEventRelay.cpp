#include "Core/Bridge/OrvAccountEventRelay.h"

#include "Core/Bridge/OrvWebPanelSession.h"
#include "Core/Common/OrvLogging.h"
#include "Core/Json/OrvJsonWriter.h"

namespace OrvWebBridge
{
    void FOrvAccountEventRelay::OnDownloadQueueUpdated(const std::vector<FOrvDownloadQueueEntry>& Queue)
    {
        // The page is told about the current download; a queue that has just run dry has none, and the
        // finished event tells the page that instead.
        if (Queue.empty())
        {
            OrvLogf(Log, EOrvLogCategory::LogTemp, EOrvLogVerbosity::Log,
                    "Orv Bridge - Download queue updated with no entries, no queue event sent");
            return;
        }
        std::string Payload;
        FOrvJsonWriter Writer(Payload, EOrvJsonStyle::Condensed);
        Writer.BeginObject();
        Writer.String("currentDownload", Queue.front().DisplayName);
        Writer.String("currentDownloadID", Queue.front().AssetId);
        Writer.EndObject();
        Session.EmitEvent("downloader.queue.updated", Payload);
    }

    void FOrvAccountEventRelay::OnDownloadProgress(double Progress)
    {
        std::string Payload;
        FOrvJsonWriter Writer(Payload, EOrvJsonStyle::Condensed);
        Writer.BeginObject();
        Writer.Number("progress", Progress);
        Writer.EndObject();
        Session.EmitEvent("downloader.queue.progress", Payload);
    }

    void FOrvAccountEventRelay::OnDownloadQueueFinished()
    {
        Session.EmitEvent("downloader.queue.finished");
    }

    void FOrvAccountEventRelay::OnLibraryUpdated()
    {
        Session.EmitEvent("library.updated");
    }
} // namespace OrvWebBridge
