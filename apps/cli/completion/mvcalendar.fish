# SPDX-License-Identifier: LGPL-2.1-or-later
# fish completion for mvcalendar; the program itself knows what could stand next

complete -c mvcalendar -a '(mvcalendar complete (commandline -opc)[2..-1] (commandline -ct) 2>/dev/null)'
