#!/usr/bin/env python3
"""Prints a document with choices, takes what would resolve conflicts, and follows the job.

    print_with_serve.py DOCUMENT [QUEUE] [OPTION=CHOICE]...      PDE_HOST names the program
"""
import json
import os
import subprocess
import sys


class Refused(Exception):
    """The answer isn't "ok"; `answer` has all of it."""

    def __init__(self, answer):
        super().__init__(answer["why"])
        self.answer = answer


class Serve:
    """pde-host serve: a command goes in, its answer comes out."""

    def __enter__(self):
        self.process = subprocess.Popen([os.environ.get("PDE_HOST", "pde-host"), "serve"],
                                        stdin=subprocess.PIPE, stdout=subprocess.PIPE)
        return self

    def __exit__(self, *_):
        self.process.stdin.close()
        self.process.wait()

    def ask(self, command, **members):
        line = json.dumps({"do": command, **members}) + "\n"
        self.process.stdin.write(line.encode())
        self.process.stdin.flush()
        answer = json.loads(self.process.stdout.readline())
        if not answer["ok"]:
            raise Refused(answer)
        return answer


def default_queue(serve):
    for queue in serve.ask("list", seconds=5)["queues"]:
        print(f"{queue['name']}: {queue['stateText']}")
        if queue["default"]:
            return queue["name"]
    sys.exit("there is no default queue; name one")


def main():
    document, words = sys.argv[1], sys.argv[2:]
    names = [word for word in words if "=" not in word]
    choices = dict(word.split("=", 1) for word in words if "=" in word)
    with Serve() as serve:
        queue = names[0] if names else default_queue(serve)
        verdict = serve.ask("check", queue=queue, choices=choices)
        for conflict in verdict["conflicts"]:
            print("conflict:", conflict["text"])
        for change in verdict["resolution"]:
            print("changed:", change["text"])
            choices[change["option"]] = change["choice"]
        job = serve.ask("print", queue=queue, document=document, choices=choices)["job"]
        state = serve.ask("job", job=job)
        while not state["finished"]:
            print(f"job {job}: {state['state']}")
            state = serve.ask("job", job=job, wait="change", known=state["state"], seconds=30)
        print(f"job {job}: {state['state']}")


try:
    main()
except Refused as refusal:
    for problem in refusal.answer.get("problems", []):
        print(f"{problem['option']}: {problem['why']}", file=sys.stderr)
    sys.exit(f"refused: {refusal}")
