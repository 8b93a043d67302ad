# Completion of the command quorix for bash. Everything is asked of the command itself.

# Prints one line for each option of the command: its name, a tab and its help.
_quorix_options() {
  "$1" "$2" --help 2>/dev/null | sed -n 's/^  \(--[a-z-]*\)\( [^ ]*\)\{0,1\}  *\(.*\)$/\1\t\3/p'
}

_quorix() {
  local LC_ALL=C program=${COMP_WORDS[0]} command=${COMP_WORDS[1]-} word=${COMP_WORDS[COMP_CWORD]} words
  local before=${COMP_WORDS[COMP_CWORD-1]}
  export LC_ALL
  # The equals sign of --name=value is a word of its own.
  if [[ $word == = ]]; then word=; elif [[ $before == = ]]; then before=${COMP_WORDS[COMP_CWORD-2]}; fi
  COMPREPLY=()

  if ((COMP_CWORD == 1)); then
    words="--help --version $("$program" --help 2>/dev/null | sed -n '/^Commands:/,/^$/s/^  \([a-z][a-z-]*\).*/\1/p')"
  elif [[ $before == --*-unit ]]; then
    words=$(_quorix_options "$program" "$command" | sed -n "s/^$before\t//p")
    words=${words//,/}
  elif [[ $word == -* ]]; then
    words=$(_quorix_options "$program" "$command" | cut -f 1)
  elif [[ $command == functions ]]; then
    words=$("$program" functions 2>/dev/null | sed -n 's/^  \([A-Z][A-Z0-9][A-Z0-9]*\) .*/\1/p')
    word=${word^^}
  else
    return
  fi
  mapfile -t COMPREPLY < <(compgen -W "$words" -- "$word")
}

complete -o default -F _quorix quorix
