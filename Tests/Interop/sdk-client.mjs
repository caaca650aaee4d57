// The official MCP TypeScript SDK client against "orv-host serve" over Streamable HTTP on /mcp: the
// handshake, the tool list, and a text and an image result, which the SDK checks against its own
// schemas. Each tool's answers are the end-to-end suite's business. Exits non-zero on the first failure.
// Usage: node sdk-client.mjs PATH_TO_ORV_HOST
import { spawn } from "node:child_process";
import { createInterface } from "node:readline";
import { Client } from "@modelcontextprotocol/sdk/client/index.js";
import { StreamableHTTPClientTransport } from "@modelcontextprotocol/sdk/client/streamableHttp.js";

const HostPath = process.argv[2];
if (!HostPath) {
    console.error("usage: node sdk-client.mjs PATH_TO_ORV_HOST");
    process.exit(2);
}

const Host = spawn(HostPath, ["serve", "--port", "0", "--no-panel", "--no-console"], { stdio: ["ignore", "pipe", "pipe"] });
let HostErrors = "";
Host.stderr.on("data", (Chunk) => (HostErrors += Chunk));
const HostExited = new Promise((Resolve) => Host.on("exit", (Code, Signal) => Resolve({ Code, Signal })));

function Fail(Message) {
    console.error(`FAIL: ${Message}`);
    if (HostErrors) {
        console.error(`orv-host stderr:\n${HostErrors}`);
    }
    Host.kill("SIGKILL");
    process.exit(1);
}

const Watchdog = setTimeout(() => Fail("timed out after 90 s"), 90_000);

function WaitForUrl() {
    return new Promise((Resolve, Reject) => {
        const Lines = createInterface({ input: Host.stdout });
        const Timer = setTimeout(() => Reject(new Error("no URL line within 20 s")), 20_000);
        Lines.on("line", (Line) => {
            const Match = /^Serving MCP on (http:\/\/127\.0\.0\.1:\d+\/mcp)$/.exec(Line);
            if (Match) {
                clearTimeout(Timer);
                Resolve(Match[1]);
            }
        });
        Host.on("exit", () => Reject(new Error("orv-host ended before serving")));
    });
}

function Expect(Condition, Message) {
    if (!Condition) {
        throw new Error(Message);
    }
}

/** Calls a tool and returns its one content block; structured text results are parsed. */
async function Call(ClientInstance, Name, Args = {}) {
    const Result = await ClientInstance.callTool({ name: Name, arguments: Args });
    Expect(Array.isArray(Result.content) && Result.content.length === 1, `${Name}: one content block`);
    Expect(!Result.isError, `${Name}: isError is never set`);
    const Block = Result.content[0];
    if (Block.type === "text") {
        try {
            Block.json = JSON.parse(Block.text);
        } catch {
            Block.json = undefined;
        }
        Expect(!(Block.json && Block.json.error), `${Name}: ${Block.text}`);
    }
    console.log(`ok ${Name} (${Block.type})`);
    return Block;
}

async function Main() {
    const Url = await WaitForUrl();
    const ClientInstance = new Client({ name: "orv-interop", version: "1.0.0" });
    await ClientInstance.connect(new StreamableHTTPClientTransport(new URL(Url)));
    Expect(ClientInstance.getServerVersion()?.name === "ORVESSA", "serverInfo.name is ORVESSA");
    await ClientInstance.ping();

    const { tools: Tools } = await ClientInstance.listTools();
    Expect(Tools.length === 9, `tools/list has 9 tools, got ${Tools.length}`);
    console.log(`ok tools/list (${Tools.map((Tool) => Tool.name).join(", ")})`);

    const Scene = await Call(ClientInstance, "ue_list_scene");
    Expect(Scene.json.actors.length > 0, "the demo room has products");
    const Capture = await Call(ClientInstance, "ue_capture_view", { quality: 50 });
    Expect(Capture.type === "image" && Capture.mimeType === "image/jpeg", "capture is a JPEG image");
    Expect(Buffer.from(Capture.data, "base64").subarray(0, 2).equals(Buffer.from([0xff, 0xd8])), "JPEG data");

    await ClientInstance.close();
    Host.kill("SIGTERM");
    const { Code } = await HostExited;
    Expect(Code === 0, `orv-host exits 0 on SIGTERM, got ${Code}`);
    clearTimeout(Watchdog);
    console.log("MCP SDK client talked to the host");
}

Main().catch((Error) => Fail(Error.stack || String(Error)));
