#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""The AT commands of a made-up mobile modem, as far as ModemManager's plug-in for
u-blox asks for them.

    at-modem.py LINK

LINK becomes a link to a new terminal, the modem's serial line. Each line on the
standard input changes something, and is answered with "ok" on the standard output
once the modem has said so on its line:

    register home|roaming|searching|idle    the registration with a network
    technology lte|umts                     how it reaches the network
    sim A|B|none                            the card in its slot
    drop                                    the network ends the connection

It ends with its standard input.
"""
import fcntl
import os
import pty
import re
import select
import sys
import termios
import tty

REGISTRATIONS = {"idle": 0, "home": 1, "searching": 2, "roaming": 5}
TECHNOLOGIES = {"umts": 2, "lte": 7}
NETWORKS = {"home": ("00101", "Test Net"), "roaming": ("99901", "Roam Net")}
SIMS = {
    "A": ("8949001234567890128", "001010123456789"),
    "B": ("8949009876543210982", "999700987654321"),
}
ADDRESS = "10.20.30.40"

# What never changes.
ANSWERS = {
    "I": ["u-blox", "TOBY-R200", "01.23"],
    "+CGMI": ["u-blox"],
    "+CGMM": ["TOBY-R200"],
    "+CGMR": ["01.23"],
    "+CGSN": ["004999010640000"],
    "+GCAP": ["+GCAP: +FCLASS, +CGSM"],
    "+CSCS=?": ['+CSCS: ("IRA","UCS2","GSM")'],
    "+CSCS?": ['+CSCS: "UCS2"'],
    "+WS46=?": ["+WS46: (12,22,28,25,29,30,31)"],
    "+CFUN?": ["+CFUN: 1"],
    "+CMER=?": ["+CMER: (0-3),(0),(0),(0-2),(0-1)"],
    "+CGEREP=?": ["+CGEREP: (0-2),(0-1)"],
    "+CIND=?": ['+CIND: ("battchg",(0-5)),("signal",(0-5)),("service",(0,1)),'
                '("sounder",(0,1)),("message",(0,1)),("call",(0,1)),("roam",(0,1)),'
                '("smsfull",(0,1)),("gprs",(0-2)),("callsetup",(0-3)),("callheld",(0,1)),'
                '("simind",(0-2))'],
    "+CLCK=?": ['+CLCK: ("SC","FD","PN","PU","PP","PC","PF")'],
    "+CCLK?": ['+CCLK: "24/05/06,10:20:30+08"'],
    "+UPINCNT": ["+UPINCNT: 3,3,10,10"],
    "+CGDCONT=?": ['+CGDCONT: (1-8),"IP",,,(0-2),(0-4)'],
    "+UAUTHREQ=?": ["+UAUTHREQ: (1-8),(0-3),,"],
    # A bridge to the network, with an interface of its own.
    "+UUSBCONF?": ['+UUSBCONF: 3,"RNDIS",,"0x1146"'],
    "+UBMCONF?": ["+UBMCONF: 2"],
}
# Settings that it takes as they come.
OBEYED = re.compile(
    r"(E0|V1|X4|H|&C1)?$|\+(CMEE|CMER|CGEREP|CRC|CLIP|CCWA|CTZU|CSCS|COPS|CFUN|CGATT"
    r"|UAUTHREQ|UCALLSTAT)=[^?]*$")
NEEDS_SIM = re.compile(r"\+(CPIN|CIMI|CCID|CRSM|CNUM|CLCK=\")")


class Refusal(Exception):
    """The final line of an answer that is not OK."""


class Modem:
    def __init__(self, link):
        self.line, self.terminal = pty.openpty()
        tty.setraw(self.terminal)
        os.symlink(os.ttyname(self.terminal), link)
        self.registration = "home"
        self.technology = "lte"
        self.sim = "A"
        self.apns = {}
        self.active = set()
        self.reported = set()
        self.wants_numbers = False

    def tell(self, line):
        os.write(self.line, f"\r\n{line}\r\n".encode())

    def registration_text(self):
        state = REGISTRATIONS[self.registration] if self.sim != "none" else 0
        cell = f',"1A2B","0000C0DE",{TECHNOLOGIES[self.technology]}'
        return str(state) + (cell if self.registration in NETWORKS else "")

    def tell_registration(self):
        for kind in [kind for kind in ("CREG", "CGREG", "CEREG") if kind in self.reported]:
            self.tell(f"+{kind}: {self.registration_text()}")

    # What happens to it

    def register(self, how):
        self.registration = how
        self.tell_registration()

    def use(self, technology):
        self.technology = technology
        self.tell_registration()

    def insert(self, sim):
        self.sim = sim
        self.active.clear()
        self.tell(f"+CIEV: 12,{int(sim != 'none')}")

    def drop(self):
        for context in sorted(self.active):
            self.tell(f"+CGEV: NW PDN DEACT {context}")
        self.active.clear()

    def obey(self, command):
        word, *arguments = command.split()
        {"register": self.register, "technology": self.use, "sim": self.insert,
         "drop": self.drop}[word](*arguments)

    # What it is asked

    def answer(self, command):
        """The lines of the answer."""
        if NEEDS_SIM.match(command) and self.sim == "none":
            raise Refusal("+CME ERROR: 10")
        if command in ANSWERS:
            return ANSWERS[command]
        for pattern, method in self.METHODS:
            match = re.fullmatch(pattern, command)
            if match:
                return method(self, *match.groups())
        if OBEYED.match(command):
            return []
        raise Refusal("ERROR")

    def indicators(self):
        return [f"+CIND: 5,4,1,0,0,0,{int(self.registration == 'roaming')},0,2,0,0,"
                f"{int(self.sim != 'none')}"]

    def set_reports(self, kind, value):
        (self.reported.add if value != "0" else self.reported.discard)(kind)
        return []

    def registered(self, kind):
        return [f"+{kind}: {2 if kind in self.reported else 0},{self.registration_text()}"]

    def set_operator_format(self, value):
        self.wants_numbers = value == "2"
        return []

    def operator(self):
        if self.registration not in NETWORKS:
            return ["+COPS: 0"]
        code, name = NETWORKS[self.registration]
        shown = f'2,"{code}"' if self.wants_numbers else f'0,"{name}"'
        return [f"+COPS: 0,{shown},{TECHNOLOGIES[self.technology]}"]

    def read_file(self, number):
        if number == "28589":  # administrative data: two digits of network code
            return ['+CRSM: 144,0,"00000002"']
        return ["+CRSM: 106,130"]

    def define(self, context, kind, apn):
        self.apns[int(context)] = (kind, apn)
        return []

    def contexts(self):
        return [f'+CGDCONT: {context},"{kind}","{apn}","0.0.0.0",0,0'
                for context, (kind, apn) in sorted(self.apns.items())]

    def states(self):
        return [f"+CGACT: {context},{int(context in self.active)}"
                for context in sorted(self.apns)]

    def activate(self, on, context):
        (self.active.add if on == "1" else self.active.discard)(int(context))
        return []

    def gateway(self, context):
        return [f'+UIPADDR: {context},"wwan0","10.20.30.1","255.255.255.0","",""']

    def addresses(self, context):
        apn = self.apns.get(int(context), ("", ""))[1]
        return [f'+CGCONTRDP: {context},5,"{apn}","{ADDRESS}.255.255.255.0","10.20.30.1",'
                '"10.20.30.53","10.20.30.54"']

    METHODS = [
        (r"\+CPIN\?", lambda self: ["+CPIN: READY"]),
        (r"\+CIMI", lambda self: [SIMS[self.sim][1]]),
        (r"\+CCID", lambda self: ["+CCID: " + SIMS[self.sim][0]]),
        (r'\+CLCK=".*",2', lambda self: ["+CLCK: 0"]),
        (r"\+CRSM=176,(\d+).*", read_file),
        (r"\+CIND\?", indicators),
        (r"\+(C[GE]?REG)=([0-2])", set_reports),
        (r"\+(C[GE]?REG)\?", registered),
        (r"\+COPS=3,([02])", set_operator_format),
        (r"\+COPS\?", operator),
        (r'\+CGDCONT=(\d+),"([^"]*)","([^"]*)".*', define),
        (r"\+CGDCONT\?", contexts),
        (r"\+CGACT\?", states),
        (r"\+CGACT=([01]),(\d+)", activate),
        (r"\+UIPADDR=(\d+)", gateway),
        (r"\+CGCONTRDP=(\d+)", addresses),
    ]

    def handle(self, text):
        if not text.upper().startswith("AT"):
            return
        try:
            lines, final = self.answer(text[2:]), "OK"
        except Refusal as refusal:
            lines, final = [], str(refusal)
        for line in [*lines, final]:
            self.tell(line)

    def run(self):
        commands, requests = b"", b""
        while True:
            ready = select.select([self.line, sys.stdin.fileno()], [], [])[0]
            if self.line in ready:
                requests += os.read(self.line, 4096)
                # Who had the line for itself gives it back to others.
                fcntl.ioctl(self.terminal, termios.TIOCNXCL)
                *whole, requests = re.split(rb"[\r\n]", requests)
                for request in whole:
                    self.handle(request.decode("latin1").strip())
            if sys.stdin.fileno() in ready:
                read = os.read(sys.stdin.fileno(), 4096)
                if not read:
                    return
                *whole, commands = (commands + read).split(b"\n")
                for command in whole:
                    self.obey(command.decode())
                    print("ok", flush=True)


Modem(sys.argv[1]).run()
