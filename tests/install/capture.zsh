# zsh -f capture.zsh COMPLETIONS LINE: prints what zsh offers for a command line, one match a line. A shell
# of its own, on a terminal of its own, gets the line and a Tab.
zmodload zsh/zpty || exit 1
zpty shell zsh -f -i
zpty -w shell "PROMPT=; autoload -Uz compinit; compinit -u -D; source $1
compadd () {
    if [[ \${@[1,(i)(-|--)]} == *-(O|A|D)\ * ]]; then builtin compadd \"\$@\"; return \$?; fi
    typeset -a __matches
    builtin compadd -A __matches \"\$@\"
    print -l -- \"MATCH:\"\${^__matches}
}
complete-and-leave () { zle complete-word; print DONE; exit }
zle -N complete-and-leave; bindkey '^I' complete-and-leave; print READY"
zpty -r shell seen '*READY*READY*' # typed, then printed
zpty -w -n shell "$2"$'\t'
zpty -r shell seen '*DONE*'
print -r -- $seen | tr -d '\r' | sed -n 's/.*MATCH://p'
zpty -d shell
