# Completion of kev and kevtool for bash.

# _kev_files WORD ENDING...: folders, and the files with one of the endings.
_kev_files() {
  local word=$1 ending IFS=$'\n'
  shift
  compopt -o filenames 2>/dev/null
  COMPREPLY+=($(compgen -d -- "$word"))
  for ending in "$@"; do
    COMPREPLY+=($(compgen -f -X "!*.$ending" -- "$word"))
  done
}

_kev() {
  local word=${COMP_WORDS[COMP_CWORD]}
  COMPREPLY=()
  case $word in
    -*) COMPREPLY=($(compgen -W '--help --version' -- "$word")) ;;
    # Quoted, since a shell takes an exclamation mark for a word of its history.
    \'*) COMPREPLY=($(compgen -W "\"'/!!#/'\" \"'/%%!/'\"" -- "$word")) ;;
    *)
      _kev_files "$word" '[kK][eE][vV]'
      [ -n "$word" ] || [ "$COMP_CWORD" -lt 2 ] || COMPREPLY+=("'/!!#/'" "'/%%!/'")
      ;;
  esac
}

_kevtool_options() {
  case $1 in
    '') echo --help -h --version ;;
    check) echo --help -h --json --strict ;;
    diff) echo --help -h --json --image ;;
    dump) echo --help -h --geometry ;;
    rewrite) echo --help -h --comments ;;
    sample) echo --help -h --json ;;
    new) echo --help -h --kex --ked ;;
    barcode) echo --help -h --lines ;;
    render) echo --help -h --out-dir --format --zoom --scale --filter --grid ;;
    *) echo --help -h ;;
  esac
}

_kevtool_files() {
  case $1 in
    sample) _kev_files "$2" '[kK][eE][xX]' '[kK][eE][dD]' ;;
    render) _kev_files "$2" '[kK][eE][vV]' png pdf svg ;;
    barcode) ;;
    *) _kev_files "$2" '[kK][eE][vV]' ;;
  esac
}

_kevtool() {
  local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD-1]} command='' i
  COMPREPLY=()
  for ((i = 1; i < COMP_CWORD; ++i)); do
    case ${COMP_WORDS[i]} in
      -*) ;;
      *) command=${COMP_WORDS[i]}; break ;;
    esac
  done
  case $command:$before in
    new:--kex) _kev_files "$word" '[kK][eE][xX]'; return ;;
    new:--ked) _kev_files "$word" '[kK][eE][dD]'; return ;;
    render:--format) COMPREPLY=($(compgen -W 'png pdf svg' -- "$word")); return ;;
    render:--out-dir) _kev_files "$word"; return ;;
    diff:--image) _kev_files "$word" png; return ;;
    render:--filter) COMPREPLY=($(compgen -W 'all ebeu print' -- "$word")); return ;;
    render:--zoom | render:--scale) return ;;
  esac
  if [[ $word == -* ]]; then
    COMPREPLY=($(compgen -W "$(_kevtool_options "$command")" -- "$word"))
  elif [ -z "$command" ]; then
    COMPREPLY=($(compgen -W 'check dump rewrite eval pack unpack sample new barcode diff render' -- "$word"))
  else
    _kevtool_files "$command" "$word"
  fi
}

complete -F _kev kev
complete -F _kevtool kevtool
