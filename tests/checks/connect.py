#!/usr/bin/env python3
"""The recipes of docs/connect.md, run as they stand by the programs that they are for, against the simulated
printer: Icinga, promtool, systemd's own reader, Zabbix' agent, mosquitto, a shell. Nagios and cron, which would
bring a server each, get what they would hand to the shell. Names in the recipes stand for those of this run."""
import base64
import contextlib
import json
import os
import pathlib
import re
import socket
import ssl
import subprocess
import sys
import tempfile
import time
import urllib.request

ROOT = pathlib.Path(__file__).resolve().parents[2]
BUILD = ROOT / "build/native"
PAGE = (ROOT / "docs/connect.md").read_text(encoding="utf-8")
ENVIRONMENT = {**os.environ, "PATH": f"{BUILD}:/usr/sbin:{os.environ['PATH']}", "LC_ALL": "C"}
QUIET = {"stdout": subprocess.DEVNULL, "stderr": subprocess.DEVNULL, "env": ENVIRONMENT}
faults = []


def blocks(language):
    return re.findall(rf"^```{language}\n(.*?)^```$", PAGE, re.M | re.S)


def check(why, good):
    if not good:
        faults.append(why)


def run(*command, **more):
    more = {"capture_output": True, "text": True, "env": ENVIRONMENT, "timeout": 30, **more}
    return subprocess.run([str(part) for part in command], **more)


def free_port():
    with socket.create_server(("127.0.0.1", 0)) as server:
        return server.getsockname()[1]


@contextlib.contextmanager
def running(*command, **more):
    process = subprocess.Popen([str(part) for part in command], **{**QUIET, **more})
    try:
        yield process
    finally:
        process.terminate()
        process.wait(20)


def wait_for(question, seconds=20):
    """The first true answer, or the last one."""
    end = time.monotonic() + seconds
    while not (answer := question()) and time.monotonic() < end:
        time.sleep(0.1)
    return answer


def listens(port):
    with contextlib.suppress(OSError), socket.create_connection(("127.0.0.1", port), 1):
        return True
    return False


@contextlib.contextmanager
def printer(scenario, port):
    with running("stmon", "--simulate", str(port), "--scenario", scenario) as process:
        wait_for(lambda: listens(port))
        yield process


ICINGA = """
const NodeName = "localhost"
const ZoneName = NodeName
include <itl>
object Endpoint NodeName {{}}
object Zone ZoneName {{ endpoints = [ NodeName ] }}
object ApiListener "api" {{ bind_host = "127.0.0.1", bind_port = "{api}" }}
object ApiUser "reader" {{ password = "reader", permissions = [ "objects/query/Service" ] }}
object CheckerComponent "checker" {{}}
object CheckCommand "alive" {{ command = [ "true" ] }}
template Service "soon" default {{ check_interval = 1s, retry_interval = 1s, max_check_attempts = 1 }}
object Host "printer" {{ address = "127.0.0.1:{port}", check_command = "alive", vars.printer = true }}
{recipe}
"""


def icinga(folder):
    """The states that Icinga's own interface tells while the printer goes through them."""
    port, api = free_port(), free_port()
    (folder / "certs").mkdir()
    (folder / "icinga2.conf").write_text(ICINGA.format(api=api, port=port, recipe=blocks("icinga")[0]))
    user = ["-DRunAsUser=root", "-DRunAsGroup=root"] if os.getuid() == 0 else []
    places = [f"-D{name}={folder}" for name in ("DataDir", "InitRunDir", "CacheDir", "LogDir", "SpoolDir")]
    places += [f"-D{name}={folder}/{name}" for name in
               ("PidPath", "VarsPath", "ObjectsPath", "StatePath", "ModAttrPath")]
    certificate = folder / "certs/localhost"
    run("icinga2", "pki", "new-ca", *user, *places)
    made = run("icinga2", "pki", "new-cert", "--cn", "localhost", "--key", f"{certificate}.key",
               "--cert", f"{certificate}.crt", *user, *places)
    check(f"icinga2 pki: {made}", made.returncode == 0)
    (folder / "certs/ca.crt").write_bytes(pathlib.Path(f"{certificate}.crt").read_bytes())
    question = urllib.request.Request(
        f"https://127.0.0.1:{api}/v1/objects/services/printer!printer",
        headers={"Authorization": "Basic " + base64.b64encode(b"reader:reader").decode()})

    def told(state):
        with contextlib.suppress(OSError):
            answer = urllib.request.urlopen(question, context=ssl._create_unverified_context(), timeout=5)
            service = json.load(answer)["results"][0]["attrs"]
            result = service["last_check_result"]
            return result and int(service["state"]) == state and result["output"]
        return None

    with running("icinga2", "daemon", "-c", folder / "icinga2.conf", *user, *places):
        for scenario, state, begin in (("ready", 0, "OK - Online"), ("warnings", 1, "WARNING - "),
                                       ("toner-empty", 2, "CRITICAL - No Toner (cyan, yellow)"),
                                       ("garbage", 3, "UNKNOWN - "), ("ready", 0, "OK - Online")):
            with printer(scenario, port):
                line = wait_for(lambda state=state: told(state))
            check(f"icinga, {scenario}: {line}", line and line.startswith(begin))
            print(line, file=sys.stderr)


def promtool(folder):
    (folder / "rules.yml").write_text(blocks("yaml")[0])
    silent = 'stmon_up{printer="p"}'
    test = {
        "rule_files": ["rules.yml"], "evaluation_interval": "1m", "tests": [{
            "interval": "1m",
            "input_series": [
                {"series": 'stmon_verdict{printer="p",verdict="cannot-print"}', "values": "0x9 1x30"},
                {"series": silent, "values": "1x9 0x60"},
                {"series": 'node_textfile_mtime_seconds{file="/x/printer.prom"}', "values": "0x60"}],
            "alert_rule_test": [
                {"eval_time": "9m", "alertname": name, "exp_alerts": []}
                for name in ("PrinterCannotPrint", "PrinterSilent", "PrinterMetricsOld")] + [
                {"eval_time": when, "alertname": name, "exp_alerts": [
                    {"exp_labels": labels, "exp_annotations": {"summary": summary}}]}
                for when, name, labels, summary in (
                    ("16m", "PrinterCannotPrint", {"printer": "p", "verdict": "cannot-print"}, "p cannot print"),
                    ("45m", "PrinterSilent", {"printer": "p"}, "p does not answer"),
                    ("11m", "PrinterMetricsOld", {"file": "/x/printer.prom"}, "nobody writes /x/printer.prom"))]}]}
    (folder / "test.yml").write_text(json.dumps(test))
    done = run("promtool", "test", "rules", folder / "test.yml")
    check(f"promtool: {done.stdout}{done.stderr}", done.returncode == 0)


def here(text, folder, port):
    """A recipe with the printer and the folder of this run."""
    return (text.replace("printer.example", f"127.0.0.1:{port}")
            .replace("/var/lib/prometheus/node-exporter", str(folder)))


def shell(folder, port):
    """What Nagios, cron and people hand to the shell."""
    nagios = re.search(r"command_line\s+(.*)", blocks("nagios")[0])[1]
    for macro, value in (("$HOSTADDRESS$", f"127.0.0.1:{port}"), ("$ARG1$", "10"), ("$ARG2$", "5")):
        check(f"nagios: no {macro}", macro in nagios)
        nagios = nagios.replace(macro, value)
    done = run("sh", "-c", nagios)
    check(f"nagios: {done}", done.returncode == 2 and done.stdout.startswith("CRITICAL - "))
    done = run("/usr/lib/nagios/plugins/negate", "-s", BUILD / "stmon", "check", f"127.0.0.1:{port}")
    check(f"negate: {done}", done.returncode == 0 and done.stdout.startswith("OK - No Toner"))

    cron = re.fullmatch(r"(?:[\d*/,-]+ ){5} *\w+ +(.*)\n", blocks("cron")[0])
    done = run("sh", "-c", here(cron[1], folder, port))
    metrics = folder / "printer.prom"
    check(f"cron: {done}", not done.stdout + done.stderr and "stmon_up" in metrics.read_text())
    metrics.unlink()

    watch = {**ENVIRONMENT, "PRINTER": f"127.0.0.1:{port}", "FOLDER": str(folder)}
    with running("sh", "-c", "exec " + blocks("sh")[0], env=watch):
        check("the watch writes no metrics", wait_for(metrics.exists))
    done = run("sh", "-c", blocks("sh")[-1], env=watch, cwd=ROOT)
    check(f"python: {done}", done.stdout.startswith("exit status 2\n1 69 error toner-empty-error"))


def systemd(folder, port):
    units = re.split(r"^# /etc/systemd/system/(.*)\n", blocks("ini")[0], flags=re.M)[1:]
    files = {folder / name: text for name, text in zip(units[::2], units[1::2])}
    for file, text in files.items():
        file.write_text(here(text, folder, port).replace("ExecStart=stmon", f"ExecStart={BUILD}/stmon"))
    done = run("systemd-analyze", "verify", "--man=no", *files)
    check(f"systemd: {done.stdout}{done.stderr}", done.returncode == 0 and not done.stderr)
    service = (folder / "stmon.service").read_text()
    done = run("sh", "-c", re.search(r"^ExecStart=(.*)", service, re.M)[1])
    allowed = re.search(r"^SuccessExitStatus=(.*)", service, re.M)[1].split()
    check(f"systemd's service: {done}", str(done.returncode) in allowed)


def zabbix(folder, port):
    (folder / "agent.conf").write_text(f"Server=127.0.0.1\nLogType=console\n{blocks('zabbix')[0]}")
    root = ["setpriv", "--reuid", "nobody", "--clear-groups"] if os.getuid() == 0 else []
    folder.chmod(0o755)
    done = run(*root, "zabbix_agentd", "-c", folder / "agent.conf", "-t", f"stmon[127.0.0.1:{port}]")
    value = re.search(r"\[t\|(.*)\]", done.stdout, re.S)
    check(f"zabbix: {done}", value and json.loads(value[1])["exit_status"] == 2)


def home_assistant(folder, port):
    broker = free_port()
    (folder / "mosquitto.conf").write_text(f"listener {broker} 127.0.0.1\nallow_anonymous true\n")
    environment = {**ENVIRONMENT, "PRINTER": f"127.0.0.1:{port}", "BROKER": "127.0.0.1"}
    announce, publish = (text.replace("mosquitto_pub", f"mosquitto_pub -p {broker}") for text in blocks("sh")[1:3])
    with running("mosquitto", "-c", folder / "mosquitto.conf"):
        check("no broker", wait_for(lambda: listens(broker)))
        done = run("sh", "-c", announce, env=environment)
        check(f"mosquitto_pub: {done}", done.returncode == 0)
        listen = ["mosquitto_sub", "-h", "127.0.0.1", "-p", str(broker), "-W", "15", "-C", "1", "-t"]
        config = json.loads(run(*listen, "homeassistant/#").stdout)
        check(f"discovery: {config}", config["state_topic"] == "stmon/printer" and config["unique_id"])
        with subprocess.Popen([*listen, config["state_topic"]], stdout=subprocess.PIPE) as reader:
            time.sleep(0.5)  # until it has subscribed
            with running("sh", "-c", publish, env=environment, start_new_session=True) as sender:
                state = json.loads(reader.communicate(timeout=20)[0])
                os.killpg(sender.pid, 15)
        check(f"state: {state}", state["status"] == "No Toner")


with tempfile.TemporaryDirectory() as name:
    folders = {recipe: pathlib.Path(name, recipe.__name__) for recipe in
               (icinga, promtool, shell, systemd, zabbix, home_assistant)}
    pathlib.Path(name).chmod(0o755)
    for path in folders.values():
        path.mkdir()
    icinga(folders.pop(icinga))
    promtool(folders.pop(promtool))
    simulated = free_port()
    with printer("toner-empty", simulated):
        for recipe, path in folders.items():
            recipe(path, simulated)
print("\n".join(faults))
sys.exit(bool(faults))
