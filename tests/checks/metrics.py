#!/usr/bin/env python3
"""What --metrics writes, for every scenario, both records and a printer that was never seen: promtool finds
nothing to object to, and a Prometheus that scrapes it takes every series, once each, with the exit status as
verdict. The time of the last answer outlives a poll that fails."""
import collections
import http.server
import json
import pathlib
import re
import socket
import subprocess
import sys
import tempfile
import threading
import time
import urllib.parse
import urllib.request

ROOT = pathlib.Path(__file__).resolve().parents[2]
STMON = ROOT / "build/native/stmon"
VERDICTS = ["fine", "attention", "cannot-print", "unknown"]
PATIENCE = 60  # seconds for Prometheus, which needs about three
faults = []


def run(*arguments):
    return subprocess.run([STMON, "--timeout", "1", *arguments], capture_output=True, text=True)


def free_port():
    with socket.socket() as taken:
        taken.bind(("127.0.0.1", 0))
        return taken.getsockname()[1]


class Pages(http.server.BaseHTTPRequestHandler):
    texts = []  # by number

    def do_GET(self):
        self.send_response(200)
        self.send_header("Content-Type", "text/plain; version=0.0.4; charset=utf-8")
        self.end_headers()
        self.wfile.write(self.texts[int(self.path[1:])].encode())

    def log_message(self, *ignored):
        pass


def ask(port, question):
    with urllib.request.urlopen(f"http://127.0.0.1:{port}/api/v1/{question}", timeout=5) as answer:
        return json.load(answer)["data"]


def scraped(folder, texts):
    """The series that Prometheus has of each text, once it has scraped all: [(labels, value), ...] by number."""
    Pages.texts = texts
    server = http.server.ThreadingHTTPServer(("127.0.0.1", 0), Pages)
    threading.Thread(target=server.serve_forever, daemon=True).start()
    targets = [{"targets": [f"127.0.0.1:{server.server_port}"], "labels": {"__metrics_path__": f"/{i}", "page": str(i)}}
               for i in range(len(texts))]
    pathlib.Path(folder, "prometheus.yml").write_text(json.dumps({
        "global": {"scrape_interval": "1s", "scrape_timeout": "1s"},
        "scrape_configs": [{"job_name": "stmon", "static_configs": targets}]}))
    port = free_port()
    log = pathlib.Path(folder, "log").open("w+")
    prometheus = subprocess.Popen(
        ["prometheus", f"--config.file={folder}/prometheus.yml", f"--storage.tsdb.path={folder}/data",
         f"--web.listen-address=127.0.0.1:{port}", "--log.level=warn"], stdout=log, stderr=log)
    try:
        end = time.monotonic() + PATIENCE
        while time.monotonic() < end and prometheus.poll() is None:
            time.sleep(0.3)
            try:
                up = [target for target in ask(port, "targets")["activeTargets"] if target["health"] == "up"]
                if len(up) == len(texts):
                    break
            except OSError:
                pass  # not up yet
        else:
            faults.append("Prometheus has not scraped every page")
        query = urllib.parse.quote('{__name__=~"stmon_.*"}')
        series = collections.defaultdict(list)
        for each in ask(port, f"query?query={query}")["result"]:
            series[int(each["metric"].pop("page"))].append((each["metric"], float(each["value"][1])))
        log.seek(0)
        faults.extend(f"Prometheus: {line.strip()}" for line in log)
        return series
    finally:
        prometheus.terminate()
        try:
            prometheus.wait(10)
        except subprocess.TimeoutExpired:
            prometheus.kill()
        server.shutdown()


def last_answer(file):
    times = re.findall(r"^stmon_last_answer_timestamp_seconds\S* (\S+)$", file.read_text(encoding="utf-8"), re.M)
    return times[0] if times else None


with tempfile.TemporaryDirectory() as folder:
    file = pathlib.Path(folder, "stmon.prom")
    twice = pathlib.Path(folder, "twice.txt")
    twice.write_text("status 32,32,777,777,778\nonline no\ntray 1 6 50\ntray 1 8 20\ntray T 6 0\ntray 5 128 100\n")
    listed = subprocess.run([STMON, "--scenario", "list"], capture_output=True, text=True, check=True).stdout
    scenarios = [line.split()[0] for line in listed.splitlines()] + [str(twice)]
    runs = [["--scenario", name, "--record", kind] for name in scenarios for kind in ("list", "flat")]
    pages = []
    for arguments in [*runs, ["127.0.0.1:1"]]:
        file.unlink(missing_ok=True)
        done = run(*arguments, "--metrics", file)
        pages.append((" ".join(arguments), file.read_text(encoding="utf-8"), done.returncode))
    for why, text, status in pages[::2]:  # both records make the same names
        said = subprocess.run(["promtool", "check", "metrics"], input=text, capture_output=True, text=True)
        if said.returncode or said.stderr:
            faults.append(f"{why}: promtool: {said.stderr.strip()}")
    series = scraped(folder, [text for why, text, status in pages])
    for number, (why, text, status) in enumerate(pages):
        samples = [line for line in text.splitlines() if not line.startswith("#")]
        if len(series[number]) != len(samples):
            faults.append(f"{why}: {len(samples)} samples, of which Prometheus has {len(series[number])}")
        told = [labels["verdict"] for labels, value in series[number] if "verdict" in labels and value == 1]
        if told != [VERDICTS[status]]:
            faults.append(f"{why}: verdict {told}, exit status {status}")
    names = {labels["__name__"] for samples in series.values() for labels, value in samples}
    described = set(re.findall(r"^\| `(stmon_\w+)`", (ROOT / "docs/stmon.md").read_text(encoding="utf-8"), re.M))
    faults.extend(f"{name} is not in both, docs/stmon.md and the metrics" for name in sorted(names ^ described))
    print(f"{len(pages)} pages, {sum(map(len, series.values()))} series")

    # One printer: it answers, then it is silent for two polls, each of a process of its own.
    port = str(free_port())
    printer = subprocess.Popen([STMON, "--simulate", port], stdout=subprocess.PIPE)
    printer.stdout.readline()
    run("127.0.0.1:" + port, "--metrics", file)
    printer.terminate()
    printer.wait()
    before = last_answer(file)
    silent = [run("127.0.0.1:" + port, "--metrics", file).returncode for _ in range(2)]
    if silent != [3, 3] or before is None or last_answer(file) != before:
        faults.append(f"last answer {before}, after two silent polls {last_answer(file)}; exit status {silent}")
print("\n".join(faults))
sys.exit(bool(faults))
