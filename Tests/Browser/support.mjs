// What the panel's browser suite and benchmark share: orv-host serve as a child process, and headless
// Chromium from the distribution with a fresh profile.
import { spawn } from "node:child_process";
import { createInterface } from "node:readline";
import fs from "node:fs";
import os from "node:os";
import path from "node:path";
import puppeteer from "puppeteer-core";

export const HostPath = process.env.ORV_HOST || path.resolve(import.meta.dirname, "../../build/orv-host");
const ChromiumPath = process.env.ORV_CHROMIUM || "/usr/bin/chromium";

/**
 * Starts "orv-host serve" (MCP and the panel on free ports); resolves once its URL lines are out.
 * With bConsole, Host.Command(Line, Expect) types a console command and resolves with its answer's line
 * that matches Expect.
 */
export async function StartHost({ bConsole = false } = {}) {
    const Args = ["serve", "--port", "0", "--panel-port", "0", ...(bConsole ? [] : ["--no-console"])];
    const Child = spawn(HostPath, Args, { stdio: [bConsole ? "pipe" : "ignore", "pipe", "pipe"] });
    const Host = { Child, Output: [], Errors: "", PanelUrl: "" };
    Child.stderr.on("data", (Chunk) => (Host.Errors += Chunk));
    const Lines = createInterface({ input: Child.stdout });
    Lines.on("line", (Line) => Host.Output.push(Line));
    Host.Exited = new Promise((Resolve) => Child.on("exit", Resolve));
    Host.PanelUrl = await new Promise((Resolve, Reject) => {
        const Timer = setTimeout(() => Reject(new Error(`no panel URL line within 20 s\n${Host.Errors}`)), 20_000);
        Lines.on("line", (Line) => {
            const Match = /^Orv Catalog: (http:\/\/127\.0\.0\.1:\d+\/)/.exec(Line);
            if (Match) {
                clearTimeout(Timer);
                Resolve(Match[1]);
            }
        });
        Child.on("exit", () => Reject(new Error(`orv-host ended before serving the panel\n${Host.Errors}`)));
    });
    // A console command, answered when a line of its answer matches Expect: that line.
    Host.Command = async (Line, Expect) => {
        const First = Host.Output.length;
        Child.stdin.write(`${Line}\n`);
        return WaitFor(() => Host.Output.slice(First).find((Out) => Expect.test(Out)), `"${Line}" answering ${Expect}`);
    };
    Host.Stop = async () => {
        Child.kill("SIGTERM");
        await Host.Exited;
    };
    return Host;
}

/** Headless Chromium with a fresh profile; Close also removes the profile. */
export async function LaunchBrowser() {
    const Profile = fs.mkdtempSync(path.join(os.tmpdir(), "orv-chromium-"));
    const Browser = await puppeteer.launch({
        executablePath: ChromiumPath,
        headless: true,
        userDataDir: Profile,
        // The machine's network is closed: without these Chromium keeps trying to reach its services.
        args: ["--no-sandbox", "--disable-gpu", "--disable-quic", "--no-first-run", "--disable-background-networking",
            "--disable-component-update", "--disable-sync"],
    });
    return {
        Browser,
        Close: async () => {
            await Browser.close();
            fs.rmSync(Profile, { recursive: true, force: true });
        },
    };
}

/** Polls Check until it returns something truthy; fails with Message after TimeoutMs. */
export async function WaitFor(Check, Message, TimeoutMs = 5000) {
    const Deadline = Date.now() + TimeoutMs;
    for (;;) {
        const Value = await Check();
        if (Value) {
            return Value;
        }
        if (Date.now() > Deadline) {
            throw new Error(`timed out: ${Message}`);
        }
        await new Promise((Resolve) => setTimeout(Resolve, 25));
    }
}

/**
 * Opens Url in a new page with a recorder as window.__orv_emit, and waits until the editor's events reach
 * it (the page's event stream is connected). Recorded events are in window.__events as [name, payload].
 */
export async function OpenPanel(Browser, Url) {
    const Page = await Browser.newPage();
    await Page.goto(Url);
    await InstallRecorder(Page);
    return Page;
}

export async function InstallRecorder(Page) {
    await Page.evaluate(() => {
        window.__events = [];
        window.__orv_emit = (Name, Payload) => window.__events.push([Name, Payload]);
    });
    await WaitFor(
        () =>
            Page.evaluate(async () => {
                await window.ue.orvbridge.testorveventbus();
                await new Promise((Resolve) => setTimeout(Resolve, 20));
                return window.__events.some(([Name]) => Name === "orvbus.test");
            }),
        "the page's event stream never connected",
    );
    await Page.evaluate(() => (window.__events = []));
}
