# SPDX-License-Identifier: GPL-3.0-or-later
function __pellory_marks
    for day in (date +%F) (date -d yesterday +%F 2>/dev/null)
        for state in UNKNOWN IN_OFFICE OUT_OF_OFFICE VACATION_DAY WILL_BE_IN_OFFICE
            echo "$day=$state"
        end
    end
end

complete -c pellory -f
complete -c pellory -l at-login -d 'Start without a window, as at login'
complete -c pellory -l check-now -d 'Make the running Pellory check now'
complete -c pellory -l status -d 'Print the state of today and the figures'
complete -c pellory -n '__fish_contains_opt status' -l json -d 'Print the status as JSON'
complete -c pellory -l mark -x -a '(__pellory_marks)' -d 'Mark a day'
complete -c pellory -l undo -d 'Take back the last change'
complete -c pellory -l export -r -F -d 'Write all days as CSV'
complete -c pellory -l backup -d 'Make a backup'
complete -c pellory -s h -l help -d 'Show the options'
complete -c pellory -s v -l version -d 'Show the version'
