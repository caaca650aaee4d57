-- wrk script: POST the JSON-RPC body from ORV_WRK_BODY over keep-alive connections.
wrk.method = "POST"
wrk.body = os.getenv("ORV_WRK_BODY") or '{"jsonrpc":"2.0","id":1,"method":"ping"}'
wrk.headers["Content-Type"] = "application/json"

local Failures = 0

response = function(status, headers, body)
    if status ~= 200 then
        Failures = Failures + 1
    end
end

done = function(summary, latency, requests)
    -- Non-2xx answers also show in wrk's own summary; this line makes a wrong route obvious.
    io.write(string.format("orv-non-200: %d\n", summary.errors.status))
end
