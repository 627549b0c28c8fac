# SPDX-License-Identifier: LGPL-2.1-or-later
# bash completion for mvcalendar; the program itself knows what could stand next

_mvcalendar()
{
    local IFS=$'\n'
    COMPREPLY=($(mvcalendar complete "${COMP_WORDS[@]:1:COMP_CWORD}" 2>/dev/null | cut -f 1))
}
complete -o default -F _mvcalendar mvcalendar
