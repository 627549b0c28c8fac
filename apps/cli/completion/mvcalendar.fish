# SPDX-License-Identifier: LGPL-2.1-or-later
# fish completion for mvcalendar; the program itself knows what could stand next

function __mvcalendar_candidates
    set -l found (mvcalendar complete (commandline -opc)[2..-1] (commandline -ct) 2>/dev/null)
    if set -q found[1]
        printf '%s\n' $found
    else
        __fish_complete_path (commandline -ct)
    end
end
complete -c mvcalendar -f -a '(__mvcalendar_candidates)'
