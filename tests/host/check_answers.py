#!/usr/bin/env python3
"""Holds what `pde-host serve` was told and has answered against its schema.

    check_answers.py SCHEMA TRANSCRIPT

A line of the transcript is [request, answer], the request null where it was no JSON object. Told are
answers that the schema refuses, requests that only one of program and schema takes, and what the
schema names but no request and no answer had. Without jsonschema the last alone is looked at.
"""
import json
import sys

try:
    from jsonschema import Draft202012Validator
except ImportError:
    Draft202012Validator = None

with open(sys.argv[1], encoding="utf-8") as file:
    schema = json.load(file)
with open(sys.argv[2], encoding="utf-8") as file:
    transcript = [json.loads(line) for line in file]
faults = []


def resolved(part):
    while "$ref" in part:
        target = schema
        for key in part["$ref"].split("/")[1:]:
            target = target[key]
        part = target
    return part


def named(part, path):
    """The paths of all members that a part of the schema names."""
    part = resolved(part)
    for name, member in part.get("properties", {}).items():
        yield f"{path}.{name}"
        yield from named(member, f"{path}.{name}")
    if "items" in part:
        yield from named(part["items"], path)


def present(value, path):
    if isinstance(value, dict):
        for name, member in value.items():
            yield f"{path}.{name}"
            yield from present(member, f"{path}.{name}")
    elif isinstance(value, list):
        for item in value:
            yield from present(item, path)


def fits(value, kind, name):
    if not Draft202012Validator or name not in schema["$defs"][kind]:
        return None
    part = {"$ref": f"#/$defs/{kind}/{name}", "$defs": schema["$defs"]}
    return [error.message for error in Draft202012Validator(part).iter_errors(value)]


seen = set()
for request, answer in transcript:
    command = request.get("do") if isinstance(request, dict) else None
    kind = command if answer["ok"] else "refusal" if "fits" not in answer else "refusedPrint"
    seen.update(present(answer, f"answers.{kind}"))
    for error in fits(answer, "answers", kind) or []:
        faults.append(f"answer to {json.dumps(request)}: {error}")
    if answer["ok"] or kind == "refusedPrint":
        seen.update(present(request, f"requests.{command}"))
        for error in fits(request, "requests", command) or []:
            faults.append(f"taken, but against the schema: {json.dumps(request)}: {error}")
    elif answer["why"].startswith('"') and fits(request, "requests", command) == []:
        faults.append(f"refused ({answer['why']}), but by the schema: {json.dumps(request)}")
for kind in ("requests", "answers"):
    for name, part in schema["$defs"][kind].items():
        faults += [f"not seen: {path}" for path in named(part, f"{kind}.{name}") if path not in seen]
print("\n".join(faults) if faults else "validated" if Draft202012Validator else "looked at")
sys.exit(1 if faults else 0)
