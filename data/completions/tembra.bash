# bash completion for tembra(1)

_tembra() {
  local cur prev words cword
  _init_completion || return
  COMPREPLY=()
  local command=${words[1]}
  if [ "$cword" -eq 1 ]; then
    COMPREPLY=($(compgen -W 'open close toggle add edit settings status scan render ocr doctor quit
      --background --version --help' -- "$cur"))
    return
  fi
  case $command in
  open)
    case $prev in
    --tab) COMPREPLY=($(compgen -W 'tray screenshots text' -- "$cur")) ;;
    *) COMPREPLY=($(compgen -W '--tab' -- "$cur")) ;;
    esac
    ;;
  settings)
    [ "$cword" -eq 2 ] &&
      COMPREPLY=($(compgen -W 'general screenshots editor tray text shortcut doctor about' -- "$cur"))
    ;;
  status | doctor) COMPREPLY=($(compgen -W '--json' -- "$cur")) ;;
  scan)
    case $cur in
    -*) COMPREPLY=($(compgen -W '--json' -- "$cur")) ;;
    *) _filedir -d ;;
    esac
    ;;
  ocr)
    case $cur in
    -*) COMPREPLY=($(compgen -W '--paragraphs --one-line --words --json' -- "$cur")) ;;
    *) _filedir ;;
    esac
    ;;
  render)
    case $prev in
    --edits) _filedir json && return ;;
    -o) _filedir '@(png|jpg|jpeg|jpe)' && return ;;
    esac
    case $cur in
    -*) COMPREPLY=($(compgen -W '--edits -o' -- "$cur")) ;;
    *) _filedir '@(png|jpg|jpeg|jpe)' ;;
    esac
    ;;
  edit) _filedir '@(png|jpg|jpeg|jpe)' ;;
  add) _filedir ;;
  esac
} &&
  complete -F _tembra tembra
