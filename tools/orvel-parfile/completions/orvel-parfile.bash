# Completion of orvel-parfile for bash. The tool itself tells what may stand at the cursor: see subcommands/complete.cpp.

# Prints names of folders, and of files that end with $2, that begin with $1. A folder carries a "/".
_orvel_parfile_files() {
  local name
  while IFS= read -r name; do
    if [[ -d $name ]]; then
      printf '%s/\n' "$name"
    elif [[ -n $2 && $name == *"$2" ]]; then
      printf '%s\n' "$name"
    fi
  done < <(compgen -f -- "$1")
}

_orvel_parfile() {
  local tool=${COMP_WORDS[0]/#\~/$HOME} current=${COMP_WORDS[COMP_CWORD]//\\/} candidate
  local -a words=("${COMP_WORDS[@]:1:COMP_CWORD}")
  words=("${words[@]//\\/}") # as the tool would get them: a blank is written "\ "
  local -A offered=()
  COMPREPLY=()
  while IFS= read -r candidate; do
    case $candidate in
      '<folders>')
        while IFS= read -r candidate; do
          COMPREPLY+=("$candidate")
        done < <(_orvel_parfile_files "$current" '')
        ;;
      '<files '*'>')
        candidate=${candidate#<files }
        while IFS= read -r candidate; do
          [[ -n ${offered[$candidate]} ]] || COMPREPLY+=("$candidate") # folders come with each ending
          offered[$candidate]=1
        done < <(_orvel_parfile_files "$current" "${candidate%>}")
        ;;
      "$current"*) COMPREPLY+=("$candidate") ;;
    esac
  done < <("$tool" complete -- "${words[@]}" 2>/dev/null)
  local place
  for place in "${!COMPREPLY[@]}"; do
    printf -v "COMPREPLY[$place]" '%q' "${COMPREPLY[place]}"
  done
  if [[ ${#COMPREPLY[@]} -eq 1 && ${COMPREPLY[0]} == */ ]]; then
    compopt -o nospace 2>/dev/null
  fi
}

complete -F _orvel_parfile orvel-parfile
