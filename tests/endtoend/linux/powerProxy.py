#!/usr/bin/env python3
# A display with power management (DPMS) in front of one without, for displays in memory have none.
# Usage: powerProxy.py DISPLAY MINOR  stands in front of the X display (such as :5) on a free display of its own, whose
# name it prints, and answers DPMS 1.MINOR there; from 1.2 on it tells of changes. Obeys the lines on, standby, suspend
# and off with "done"; answers asked with how often clients have asked for the state.
import array
import os
import socket
import struct
import sys
import threading

LEVELS = {"on": 0, "standby": 1, "suspend": 2, "off": 3}
OPCODE = 200  # of the requests of the extension; the display has none so high
QUERY_EXTENSION, GET_INPUT_FOCUS, NO_OPERATION = 98, 43, 127
GET_VERSION, CAPABLE, INFO, SELECT_INPUT = 0, 1, 7, 8
GENERIC_EVENT = 35

minor = int(sys.argv[2])
level = 0
asked = 0
clients = []
state = threading.Lock()


class Stream:
    """Bytes and descriptors from one socket to another."""

    def __init__(self, source, target):
        self.source, self.target = source, target
        self.bytes, self.descriptors = b"", []

    def take(self, count):
        while len(self.bytes) < count:
            room = socket.CMSG_SPACE(16 * 4)
            data, ancillary, _, _ = self.source.recvmsg(1 << 16, room)
            if not data:
                raise EOFError
            for _, _, content in ancillary:
                numbers = array.array("i")
                numbers.frombytes(content[: len(content) // 4 * 4])
                self.descriptors += numbers
            self.bytes += data
        taken, self.bytes = self.bytes[:count], self.bytes[count:]
        return taken

    def send(self, data):
        ancillary = []
        if self.descriptors:
            ancillary = [(socket.SOL_SOCKET, socket.SCM_RIGHTS, array.array("i", self.descriptors))]
        sent = self.target.sendmsg([data], ancillary)
        self.target.sendall(data[sent:])
        for descriptor in self.descriptors:
            os.close(descriptor)
        self.descriptors = []


class Client:
    def __init__(self, connection):
        server = socket.socket(socket.AF_UNIX)
        server.connect("/tmp/.X11-unix/X" + sys.argv[1].lstrip(":"))
        self.requests, self.answers = Stream(connection, server), Stream(server, connection)
        self.sequence = 0  # of the last request
        self.heard = 0  # of the last answer or event
        self.replacements = {}  # sequence number: what becomes of the display's reply
        self.listens = False
        self.sending = threading.Lock()
        for task in (self.pass_requests, self.pass_answers):
            threading.Thread(target=self.guarded, args=(task,), daemon=True).start()

    def guarded(self, task):
        try:
            task()
        except (EOFError, OSError):
            pass
        for end in (self.requests.source, self.requests.target):
            try:
                end.shutdown(socket.SHUT_RDWR)
            except OSError:
                pass

    def pass_requests(self):
        head = self.requests.take(12)
        name, data = struct.unpack_from("<HH", head, 6)
        self.requests.send(head + self.requests.take((name + 3) // 4 * 4 + (data + 3) // 4 * 4))
        while True:
            request = self.requests.take(4)
            size = struct.unpack_from("<H", request, 2)[0] * 4
            if size == 0:
                request += self.requests.take(4)
                size = struct.unpack_from("<I", request, 4)[0] * 4
            request += self.requests.take(size - len(request))
            self.sequence = (self.sequence + 1) & 0xFFFF
            self.requests.send(self.replaced(request))

    def replaced(self, request):
        global asked
        if request[0] == QUERY_EXTENSION and request[8:12] == b"DPMS":
            self.replacements[self.sequence] = lambda reply: reply[:8] + bytes([1, OPCODE, 0, 0]) + reply[12:]
        if request[0] != OPCODE:
            return request
        if request[1] == SELECT_INPUT:
            self.listens = minor >= 2 and request[4] & 1 == 1
            return struct.pack("<BBH", NO_OPERATION, 0, 1)
        with state:
            asked += request[1] == INFO
            content = {
                GET_VERSION: struct.pack("<HH", 1, minor),
                CAPABLE: struct.pack("<H", 1),
                INFO: struct.pack("<HB", level, 1),
            }[request[1]]
        self.replacements[self.sequence] = lambda reply: (reply[:4] + bytes(4) + content + bytes(24))[:32]
        return struct.pack("<BBH", GET_INPUT_FOCUS, 0, 1)

    def pass_answers(self):
        head = self.answers.take(8)
        self.answers.send(head + self.answers.take(struct.unpack_from("<H", head, 6)[0] * 4))
        while True:
            answer = self.answers.take(32)
            if answer[0] == 1 or answer[0] & 0x7F == GENERIC_EVENT:
                answer += self.answers.take(struct.unpack_from("<I", answer, 4)[0] * 4)
            with self.sending:
                self.heard = struct.unpack_from("<H", answer, 2)[0]
                if answer[0] in (0, 1):
                    answer = self.replacements.pop(self.heard, lambda reply: reply)(answer)
                self.answers.send(answer)

    def tell(self):
        if self.listens:
            event = struct.pack("<BBHIHHIHB", GENERIC_EVENT, OPCODE, self.heard, 0, 0, 0, 0, level, 1)
            with self.sending:
                self.answers.send(event.ljust(32, b"\0"))


def accept(listener):
    while True:
        clients.append(Client(listener.accept()[0]))


def obey():
    global level
    for line in sys.stdin:
        word = line.strip()
        with state:
            if word == "asked":
                print(asked, flush=True)
                continue
            level = LEVELS[word]
        for client in clients:
            try:
                client.tell()
            except OSError:
                pass  # it has ended
        print("done", flush=True)


def listen():
    for number in range(600, 1000):
        listener, path = socket.socket(socket.AF_UNIX), f"/tmp/.X11-unix/X{number}"
        try:
            listener.bind(path)
        except OSError:
            continue  # somebody else's
        listener.listen()
        return listener, number, path
    sys.exit("there is no free display")


listener, number, path = listen()
threading.Thread(target=accept, args=(listener,), daemon=True).start()
print(f":{number}", flush=True)
try:
    obey()
finally:
    os.unlink(path)
