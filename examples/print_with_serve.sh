#!/bin/sh
# Prints a document on both sides and waits until it is printed.
#
#     print_with_serve.sh QUEUE DOCUMENT      PDE_HOST names the program
set -eu
host=${PDE_HOST:-pde-host}

# A text as JSON; one with control characters isn't taken.
json() {
    printf '"%s"' "$(printf '%s' "$1" | sed 's/[\\"]/\\&/g')"
}

# Asks one thing, in one line, and answers its line; a refusal ends the script.
ask() {
    answer=$(printf '%s' "$1" | tr '\n' ' ' | "$host" serve)
    case $answer in
    *'"ok":true'*) printf '%s\n' "$answer" ;;
    *)
        printf '%s\n' "$answer" >&2
        exit 1
        ;;
    esac
}

sent=$(ask "{\"do\":\"print\",\"queue\":$(json "$1"),\"document\":$(json "$2"),
             \"choices\":{\"Duplex\":\"DuplexNoTumble\"}}")
job=$(printf '%s' "$sent" | sed 's/.*"job":\([0-9]*\).*/\1/')
end=$(ask "{\"do\":\"job\",\"job\":$job,\"wait\":\"finished\",\"seconds\":60}")
printf '%s\n' "$end" | sed 's/.*"state":"\([a-z-]*\)".*/'"job $job: "'\1/'
