# SPDX-FileCopyrightText: 2026 Quillmark contributors
# SPDX-License-Identifier: MIT

# Completions of quillmark for fish.

function __quillmark_in # COMMAND PART...: whether that command is being typed, with one of the parts, where parts are given
    set -l words (commandline -opc)
    contains -- $argv[1] $words; or return 1
    set -e argv[1]
    test (count $argv) -eq 0; and return 0
    for part in $argv
        contains -- $part $words; and return 0
    end
    return 1
end

function __quillmark_scans
    set -l words (commandline -opc)
    set -l file
    if set -l i (contains -i -- --history $words)
        set file --history $words[(math $i + 1)]
    end
    quillmark history list --json $file 2>/dev/null | string match -r -g '^\s*"id": *"([^"]*)"'
end

set -l commands inspect battery export history monitor update machine app
set -l parts list show compare remove clear record

complete -c quillmark -f
complete -c quillmark -l machine -r -F -d 'Inspect this recorded machine'
complete -c quillmark -l history -r -F -d 'Keep the saved scans in this file'
complete -c quillmark -l language -x -a 'en de fr es it pt-BR nl pl ja ko zh-Hans ar' \
    -d 'Interface language for this run'
complete -c quillmark -l no-color -d 'No colours, even on a terminal'
complete -c quillmark -l version -d 'Print the version'
complete -c quillmark -s h -l help -d 'Print help'

set -l none "not __fish_seen_subcommand_from $commands"
complete -c quillmark -n $none -a inspect -d 'Inspect the machine and print every capability'
complete -c quillmark -n $none -a battery -d "Show the battery's health and figures"
complete -c quillmark -n $none -a export -d 'Inspect the machine and write the report to a file'
complete -c quillmark -n $none -a history -d 'Look at saved scans, compare them, and save new ones'
complete -c quillmark -n $none -a monitor -d 'Show processor, memory, network and heat live'
complete -c quillmark -n $none -a update -d 'Ask whether there is a newer version'
complete -c quillmark -n $none -a machine -d 'Work with recorded machines'
complete -c quillmark -n $none -a app -d 'Open the window'

for command in inspect battery monitor update "history $parts"
    complete -c quillmark -n "__quillmark_in $command" -l json -d 'Print JSON'
end
for command in inspect export
    complete -c quillmark -n "__quillmark_in $command" -l section -x -d 'Only this section' \
        -a 'system processor graphics intelligence displays media cameraAudio storage power network security'
end
for command in export "machine record"
    complete -c quillmark -n "__quillmark_in $command" -l output -r -F -d 'The file to write'
    complete -c quillmark -n "__quillmark_in $command" -l force -d 'Replace the file if it exists'
    complete -c quillmark -n "__quillmark_in $command" -l with-names -d 'Keep names and addresses'
end

complete -c quillmark -n '__quillmark_in inspect' -l markdown -d 'Print the report as Markdown'
complete -c quillmark -n '__quillmark_in inspect' -l text -d 'Print the report as plain text'
complete -c quillmark -n '__quillmark_in inspect' -l status -x -d 'Only rows with this status' \
    -a 'supported unsupported warning info'
complete -c quillmark -n '__quillmark_in inspect' -l search -x -d 'Only rows with this text'
complete -c quillmark -n '__quillmark_in export' -l format -x -d 'Form of the report' -a 'text markdown json pdf'
complete -c quillmark -n '__quillmark_in monitor' -l samples -x -d 'End after so many samples'
complete -c quillmark -n '__quillmark_in update' -l yes -d 'Agree to asking the feed, this once'
complete -c quillmark -n '__quillmark_in update' -l ledger -d 'Print the last requests that were sent'

complete -c quillmark -n '__quillmark_in machine; and not __quillmark_in machine record' -a record \
    -d "Write this machine's raw readings"
set -l noPart "__quillmark_in history; and not __quillmark_in history $parts"
complete -c quillmark -n $noPart -a list -d 'List the saved scans, the newest first'
complete -c quillmark -n $noPart -a show -d 'Show a saved scan, row by row'
complete -c quillmark -n $noPart -a compare -d 'Show what differs between two saved scans'
complete -c quillmark -n $noPart -a remove -d 'Remove a saved scan'
complete -c quillmark -n $noPart -a clear -d 'Remove all saved scans'
complete -c quillmark -n $noPart -a record -d 'Inspect the machine and save the scan'
complete -c quillmark -n '__quillmark_in history show compare remove' -a '(__quillmark_scans)' -d 'Saved scan'
complete -c quillmark -n '__quillmark_in history clear' -l yes -d 'Do not ask first'
