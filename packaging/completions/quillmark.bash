# shellcheck shell=bash
# SPDX-FileCopyrightText: 2026 Quillmark contributors
# SPDX-License-Identifier: MIT

# Completions of quillmark for bash. Nothing newer than the bash 3.2 of a Mac is needed.

_quillmark() {
    local current=${COMP_WORDS[COMP_CWORD]} command="" part="" option="" historyFile="" i word choices IFS=$' \t\n'
    local withValue=" --machine --history --language --section --status --search --format --output --samples "
    local common="--machine --history --language --no-color --version --help"
    COMPREPLY=()

    for ((i = 1; i < COMP_CWORD; i++)); do
        word=${COMP_WORDS[i]}
        if [[ $word == "=" ]]; then # of --option=value, which comes in three words
            continue
        elif [[ -n $option ]]; then
            [[ $option != --history ]] || historyFile=${word/#\~\//$HOME/}
            option=""
        elif [[ $withValue == *" $word "* ]]; then
            option=$word
        elif [[ $word != -* && -z $command ]]; then
            command=$word
        elif [[ $word != -* ]]; then
            part=${part:-$word}
        fi
    done
    [[ $current != "=" ]] || current=""

    case $option in
        --machine | --history | --output)
            # bash 3.2 cannot be asked for its own completion of files.
            IFS=$'\n'
            # shellcheck disable=SC2207
            compopt -o default 2>/dev/null || COMPREPLY=($(compgen -f -- "$current"))
            return
            ;;
        --language) choices="en de fr es it pt-BR nl pl ja ko zh-Hans ar" ;;
        --section)
            choices="system processor graphics intelligence displays media cameraAudio storage power network security"
            ;;
        --status) choices="supported unsupported warning info" ;;
        --format) choices="text markdown json pdf" ;;
        --search | --samples) return ;;
        *)
            case $command:$part in
                :) choices="inspect battery export history monitor update machine app $common" ;;
                inspect:*) choices="--json --markdown --text --section --status --search $common" ;;
                battery:*) choices="--json $common" ;;
                export:*) choices="--format --output --force --with-names --section $common" ;;
                history:) choices="list show compare remove clear record $common" ;;
                history:clear) choices="--yes --json $common" ;;
                history:show | history:compare | history:remove)
                    choices="--json $common"
                    [[ $current == -* ]] || choices="$(_quillmark_scans "$historyFile")"
                    ;;
                history:*) choices="--json $common" ;;
                monitor:*) choices="--json --samples $common" ;;
                update:*) choices="--yes --json --ledger $common" ;;
                machine:) choices="record $common" ;;
                machine:record) choices="--output --force --with-names $common" ;;
                *) choices=$common ;;
            esac
            # Options are offered when one is begun, or where there is nothing else.
            [[ $current == -* || $choices == -* ]] || choices="${choices%% --*}"
            ;;
    esac
    _quillmark_offer "$choices" "$current"
}

_quillmark_offer() { # WORDS CURRENT
    # shellcheck disable=SC2207  # bash 3.2 has no mapfile
    COMPREPLY=($(compgen -W "$1" -- "$2"))
}

_quillmark_scans() { # FILE or nothing
    quillmark history list --json ${1:+--history "$1"} 2>/dev/null |
        sed -n 's/^.*"id": *"\([^"]*\)".*$/\1/p'
}

complete -F _quillmark quillmark
