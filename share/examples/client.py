#!/usr/bin/env python3
"""A small agent: starts xqenclientui, offers two actions, prints each answer, and shows a notice of what was taken.

    python3 client.py [PROGRAM [ARGUMENT...]]

The user whose display it is runs it; protocol.md tells what can be said. It ends when both actions are decided.
"""
import datetime
import email.utils
import struct
import sys
import tempfile
import time
from subprocess import PIPE, Popen
from xml.etree import ElementTree

NOTICE_SECONDS = 5
IN_TWO_HOURS = datetime.datetime.now(datetime.timezone.utc) + datetime.timedelta(hours=2)

ACTIONS = {
    "1": {"ID": "1", "Title": "Install the security updates", "ShortDescription": "Closes holes in the browser.",
          "Deadline": email.utils.format_datetime(IN_TWO_HOURS), "Preview": "#!/bin/sh\napt-get --yes upgrade\n"},
    "2": {"ID": "2", "Title": "Restart the computer", "Cancellable": "true", "Restart": "true",
          "PreActionMessage": "All programs are closed.\n\nHave you saved your work?"},
}


def element(name, content):
    """An element that holds a text, or an element for each entry."""
    made = ElementTree.Element(name)
    if isinstance(content, dict):
        made.extend(element(*entry) for entry in content.items())
    else:
        made.text = content
    return made


def send(program, message, fields):
    """One message in a frame of its own. Neither self-closing tags nor numeric references are understood."""
    text = ElementTree.tostring(element("ClientToUI", {message: fields}), encoding="utf-8", short_empty_elements=False)
    program.stdin.write(struct.pack("<I", len(text)) + text)
    program.stdin.flush()


def answers(program):
    while len(length := program.stdout.read(4)) == 4:
        yield ElementTree.fromstring(program.stdout.read(*struct.unpack("<I", length)))[0]


def converse(program, base_directory):
    settings = {"AllowSnooze": "true", "RemindInterval": "PT15M", "UseLocale": "true"}
    send(program, "InitializationInfo", {"BaseDirectory": base_directory, "InitialUISettings": settings})
    for action in ACTIONS.values():
        send(program, "ActionRequest", action)
    undecided = set(ACTIONS)
    for answer in answers(program):
        print(answer.tag, *(f"{field.tag}={field.text}" for field in answer), flush=True)
        if answer.tag == "ActionTaken":
            action = ACTIONS[answer.findtext("ID")]
            undecided.remove(action["ID"])
            if answer.findtext("IsCancel") == "false":  # Here a real agent runs it.
                notice = {"ID": action["ID"], "Title": action["Title"], "Timeout": f"PT{NOTICE_SECONDS}S"}
                send(program, "MessageRequest", {**notice, "IsCompletionMessage": "true"})
        if not undecided:
            return time.sleep(NOTICE_SECONDS)


command = sys.argv[1:] or ["xqenclientui"]
with tempfile.TemporaryDirectory() as directory, Popen(command, stdin=PIPE, stdout=PIPE) as running:
    converse(running, directory)
