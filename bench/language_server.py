#!/usr/bin/env python3
"""Times "tessel lsp" on a text of 1 MB: bench/language_server.py TESSEL [KEYS]

For each request: a key is typed in the midst of the text, the request follows at once, and its answer
is read. Prints in milliseconds the median of KEYS (100) such times on the clock, the median and the
longest time that the server's main thread was on its core, and the bytes of the answer.
"""
import json
import os
import re
import statistics
import subprocess
import sys
import time

HERE = os.path.dirname(os.path.abspath(__file__))
SIZE = 1_000_000


def user_text():
    """A user file as large as that: the template again and again, each time with other names."""
    with open(os.path.join(HERE, "../data/zmuserp.dat"), encoding="cp1252", newline="") as file:
        template = file.read()
    text = ""
    for copy in range(SIZE // len(template) + 1):
        part = re.sub(r"(?m)^define (\w+)", rf"define \1_{copy}", template)
        text += re.sub(r"(?m)^definequote (\d+)", lambda hit: f"definequote {int(hit[1]) + 1000 * copy}", part)
    return text


def game_text():
    with open(os.path.join(HERE, "../data/zmgamep.dat"), encoding="cp1252", newline="") as file:
        template = file.read()
    return template * (SIZE // len(template) + 1)


class Server:
    def __init__(self, program):
        self.process = subprocess.Popen([program, "lsp"], stdin=subprocess.PIPE, stdout=subprocess.PIPE)
        self.requests = 0

    def send(self, message):
        body = json.dumps({"jsonrpc": "2.0", **message}).encode()
        self.process.stdin.write(b"Content-Length: %d\r\n\r\n" % len(body) + body)
        self.process.stdin.flush()

    def receive(self):
        length = 0
        while line := self.process.stdout.readline().strip():
            if line.lower().startswith(b"content-length:"):
                length = int(line.split(b":")[1])
        return self.process.stdout.read(length)

    def ask(self, method, params):
        self.requests += 1
        self.send({"id": self.requests, "method": method, "params": params})
        wanted = b'"id":%d,' % self.requests
        while True:
            answer = self.receive()
            if wanted in answer[:40]:
                return answer
            if b'"error"' in answer[:10]:
                sys.exit(f"{method}: {answer.decode()}")

    def on_core(self):
        """Milliseconds of the main thread."""
        with open(f"/proc/{self.process.pid}/task/{self.process.pid}/schedstat") as file:
            return int(file.read().split()[0]) / 1e6

    def notify(self, method, params):
        self.send({"method": method, "params": params})


def measure(program, name, text, keys):
    server = Server(program)
    uri = "untitled:" + name
    document = {"textDocument": {"uri": uri}}
    server.ask("initialize", {"processId": None, "capabilities": {"workspace": {"applyEdit": True}}})
    server.notify("initialized", {})
    server.notify("textDocument/didOpen", {"textDocument": {"uri": uri, "version": 1, "text": text}})
    lines = text.split("\r\n")
    line = next(i for i in range(len(lines) // 2, len(lines)) if re.match(r"(define|state) \w{4}", lines[i]))
    column = lines[line].index(" ") + 3
    here = {**document, "position": {"line": line + 1, "character": column}}  # below the line that is typed
    a_page = {"start": {"line": line, "character": 0}, "end": {"line": line + 60, "character": 0}}
    at_line = {"start": {"line": line + 1, "character": 0}, "end": {"line": line + 1, "character": 0}}
    context = {"diagnostics": [], "includeDeclaration": True}
    version = 1

    def key():
        nonlocal version
        version += 1
        place = {"line": line, "character": 0}
        change = {"range": {"start": place, "end": place}, "text": "\n" if version == 2 else "x"}
        server.notify("textDocument/didChange", {"textDocument": {"uri": uri, "version": version},
                                                 "contentChanges": [change]})

    key()
    server.ask("textDocument/hover", here)  # by then all of it has been read
    requests = {
        "completion": here, "hover": here, "definition": here, "references": {**here, "context": context},
        "documentHighlight": here, "prepareRename": here, "semanticTokens/range": {**document, "range": a_page},
        "codeAction": {**document, "range": at_line, "context": context}, "foldingRange": document,
        "semanticTokens/full": document, "documentSymbol": document,
    }
    for method, params in requests.items():
        times, on_core = [], []
        for _ in range(keys):
            time.sleep(0.005)
            start, busy = time.perf_counter(), server.on_core()
            key()
            answer = server.ask("textDocument/" + method, params)
            times.append((time.perf_counter() - start) * 1000)
            on_core.append(server.on_core() - busy)
        print(f"{name:6} {method:22} {statistics.median(times):7.2f} {statistics.median(on_core):7.2f} "
              f"{max(on_core):7.2f} {len(answer):9}")
    server.ask("shutdown", None)
    server.notify("exit", None)


def main():
    keys = int(sys.argv[2]) if len(sys.argv) > 2 else 100
    measure(sys.argv[1], "user", user_text(), keys)
    measure(sys.argv[1], "game", game_text(), keys)


main()
