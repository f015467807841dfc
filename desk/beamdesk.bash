# Completion of beamdesk for bash.

_beamdesk() {
  local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]} command=${COMP_WORDS[1]-}
  local words=
  case $previous in
    --project | --output | -o | --report | --script | --csv | --pdf)
      mapfile -t COMPREPLY < <(compgen -f -- "$current")
      return
      ;;
  esac
  if [ "$COMP_CWORD" -eq 1 ]; then
    words="tour rank propose table import set labels export check quantities hitrate panel events generate window shot --help --help-all --version"
  else
    case $command in
      tour) words="--project --beam" ;;
      rank) words="name section elevation bars stirrups --project --beam --json --limit --kind --top --width
                   --area --table --grade --seismic --project-kind" ;;
      propose) words="--project --beam --limit --json name section elevation stirrup topBars bottomBars leftEnd
                      rightEnd erection torsion side" ;;
      table) words="bars stirrups --width --area --grade --seismic --json" ;;
      import) words="--output --encoding --grade --legs --force --all" ;;
      set) words="--project --beam --output --at --handle name section elevation stirrup topBars bottomBars
                  leftEnd rightEnd erection torsion side" ;;
      labels) words="--json" ;;
      export) words="--output --scale --force" ;;
      check) words="--project --off --rules --json" ;;
      quantities) words="--project --csv --pdf --json" ;;
      hitrate) words="--project --order --json" ;;
      panel | events) words="name section elevation stirrup bars hbars vbars --do --script --to --text --kind --quiet --ids
                             --json" ;;
      generate) words="--seed --output --force" ;;
      window) words="--project --report" ;;
      shot) words="--project --width --height --scale --dark --chinese" ;;
    esac
    words+=" --help"
  fi
  mapfile -t COMPREPLY < <(compgen -W "$words" -- "$current")
  case $command in
    window | import | labels | export)
      mapfile -t -O "${#COMPREPLY[@]}" COMPREPLY < <(compgen -f -- "$current")
      ;;
  esac
}
complete -o filenames -F _beamdesk beamdesk
