# bash completion for zorcs

_zorcs() {
  local cur=${COMP_WORDS[COMP_CWORD]} command=${COMP_WORDS[1]} options
  COMPREPLY=()
  if ((COMP_CWORD == 1)); then
    mapfile -t COMPREPLY < <(compgen -W \
      "check show build diff pack unpack roundtrip layout plot --help --version" -- "$cur")
    return
  fi
  case $command in
    check) options="--strict --json" ;;
    show) options="--full --json --dump" ;;
    diff | roundtrip | layout) options="--json" ;;
    build | plot) options="--output" ;;
    pack) options="--premix --postmix" ;;
    unpack) options="--premix --postmix --output" ;;
  esac
  if [[ $cur == -* ]]; then
    mapfile -t COMPREPLY < <(compgen -W "$options --help" -- "$cur")
  elif [[ $command != layout ]]; then
    mapfile -t COMPREPLY < <(compgen -f -- "$cur")
  fi
}
complete -o filenames -F _zorcs zorcs
