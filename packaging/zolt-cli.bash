# bash completion for zolt-cli: its commands, their options, and files of the
# kind each command reads.

shopt -s extglob

_zolt_cli_files() {
    # Extensions in either case: older programs are often upper case.
    local pattern="*.@(${1})"
    local IFS=$'\n'
    compopt -o filenames 2>/dev/null
    COMPREPLY=($(compgen -f -X "!${pattern}" -- "$cur") $(compgen -d -- "$cur"))
}

_zolt_cli() {
    local cur prev words cword
    _init_completion 2>/dev/null || {
        cur=${COMP_WORDS[COMP_CWORD]}
        prev=${COMP_WORDS[COMP_CWORD - 1]}
        words=("${COMP_WORDS[@]}")
        cword=$COMP_CWORD
    }
    local commands="--version --help batch commands dump convert import import-pid import-zos report grv-compile compile image coverage download diff verify export"
    local programs="zlf|ZLF|zlt|ZLT|grv|GRV"

    if [[ $cword -eq 1 ]]; then
        COMPREPLY=($(compgen -W "$commands" -- "$cur"))
        return
    fi
    local command=${words[1]}

    case $prev in
        --port)
            # Serial adapters first; a typed path completes as any file.
            if [[ -z $cur ]]; then
                COMPREPLY=($(compgen -G '/dev/tty[SUA]*'))
            else
                COMPREPLY=($(compgen -f -- "$cur"))
            fi
            return ;;
        --baud)
            COMPREPLY=($(compgen -W "9600 19200 38400 57600 115200" -- "$cur"))
            return ;;
        --summary)
            COMPREPLY=($(compgen -W "wire group" -- "$cur"))
            return ;;
        --pdf) _zolt_cli_files "pdf|PDF"; return ;;
        -o) _zolt_cli_files "zlf|ZLF"; return ;;
        --netlist|--tables|--features) return ;;
        --classes)
            COMPREPLY=($(compgen -W "open short soft swap component switch" -- "$cur"))
            return ;;
        --against) _zolt_cli_files "csv|CSV|yml|YML|yaml|YAML|net|NET"; return ;;
        --wireviz) _zolt_cli_files "yml|YML|yaml|YAML"; return ;;
        --fromto) _zolt_cli_files "csv|CSV"; return ;;
    esac

    if [[ $cur == -* ]]; then
        case $command in
            commands) COMPREPLY=($(compgen -W "--grv --html" -- "$cur")) ;;
            report) COMPREPLY=($(compgen -W "--netlist --tables --summary --pdf --text" -- "$cur")) ;;
            grv-compile) COMPREPLY=($(compgen -W "--features -o --overwrite" -- "$cur")) ;;
            coverage) COMPREPLY=($(compgen -W "--classes --json --pdf" -- "$cur")) ;;
            diff) COMPREPLY=($(compgen -W "--json" -- "$cur")) ;;
            verify) COMPREPLY=($(compgen -W "--netlist --against" -- "$cur")) ;;
            export) COMPREPLY=($(compgen -W "--netlist --wireviz --fromto" -- "$cur")) ;;
            compile) COMPREPLY=($(compgen -W "--trace" -- "$cur")) ;;
            download) COMPREPLY=($(compgen -W "--port --baud --yes" -- "$cur")) ;;
        esac
        return
    fi

    case $command in
        batch) _zolt_cli_files "zcmd|ZCMD" ;;
        dump|report|compile|coverage|verify|export) _zolt_cli_files "$programs" ;;
        diff) _zolt_cli_files "$programs|bin|BIN" ;;
        convert) _zolt_cli_files "$programs" ;;
        import) [[ $cword -eq 2 ]] && _zolt_cli_files "$programs|yml|YML|yaml|YAML|net|NET|csv|CSV|pid|PID|zos|ZOS" || _zolt_cli_files "zlf|ZLF" ;;
        import-pid) [[ $cword -eq 2 ]] && _zolt_cli_files "pid|PID" || _zolt_cli_files "zlf|ZLF" ;;
        import-zos) _zolt_cli_files "zos|ZOS" ;;
        grv-compile) _zolt_cli_files "grv|GRV" ;;
        image) _zolt_cli_files "bin|BIN" ;;
        download) _zolt_cli_files "$programs|bin|BIN" ;;
    esac
}
complete -F _zolt_cli zolt-cli
