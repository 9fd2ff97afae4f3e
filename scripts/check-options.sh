# Sourced by run.sh. check_options USAGE ARGUMENTS...: ends the script where the arguments ask for help or are wrong,
# before anything is installed or built for them. The development host reads the same usage text by the same rules, and
# says the same (dev/host/Usage.h).

refuse_option() { # refuse_option OPTION PROBLEM
    echo "$1: $2" >&2
    exit 2
}

read_usage() { # read_usage USAGE: fills option_values and option_choices, by option.
    declare -gA option_values=() option_choices=()
    local line option=
    while IFS= read -r line; do
        if [[ $line =~ ^'  '(--[a-z-]+)(' '([^ ]+))?('  '|$) ]]; then
            option=${BASH_REMATCH[1]}
            option_values[$option]=${BASH_REMATCH[3]}
            if [[ ${BASH_REMATCH[3]} == *'|'* ]]; then
                option_choices[$option]=${BASH_REMATCH[3]//|/, }
            fi
        elif [[ $line =~ ^' '+([0-9].*)$ ]]; then
            option_choices[$option]+=${option_choices[$option]:+ }${BASH_REMATCH[1]}
        fi
    done <"$1"
}

is_choice() { # is_choice VALUE CHOICES: whether it is one of them, or the first word of one.
    [[ ", $2," == *", $1"[,\ ]* && $1 != *[,\ ]* && -n $1 ]]
}

is_size() { # is_size VALUE SMALLEST..LARGEST
    local size='^([0-9]{1,5})x([0-9]{1,5})$' width height
    [[ $1 =~ $size ]] || return 1
    width=$((10#${BASH_REMATCH[1]})) height=$((10#${BASH_REMATCH[2]}))
    local smallest=${2%..*} largest=${2#*..}
    ((width >= ${smallest%x*} && height >= ${smallest#*x} && width <= ${largest%x*} && height <= ${largest#*x}))
}

is_wanted() { # is_wanted VALUE OPTION
    local wanted=${option_values[$2]} choices=${option_choices[$2]:-}
    if [ -n "$choices" ]; then
        is_choice "$1" "$choices"
        return
    fi
    case $wanted in
    *..*) is_size "$1" "$wanted" ;;
    *:*) [[ $1 == ?*:* ]] ;;
    FILE) [ -f "$1" ] && [ -r "$1" ] ;;
    *) [ -n "$1" ] ;;
    esac
}

wanted_text() { # wanted_text OPTION
    local wanted=${option_values[$1]} choices=${option_choices[$1]:-}
    if [ -n "$choices" ]; then
        echo "${choices%, *} or ${choices##*, }"
    elif [ "$wanted" = FILE ]; then
        echo "a FILE that can be read"
    else
        echo "${wanted/../ to }"
    fi
}

check_value() { # check_value OPTION VALUE
    if [ -z "${option_values[$1]}" ]; then
        refuse_option "$1" "no value is wanted, not \"$2\"."
    elif ! is_wanted "$2" "$1"; then
        refuse_option "$1" "$(wanted_text "$1") is wanted, not \"$2\"."
    fi
}

check_options() {
    local usage=$1 option wanted
    shift
    read_usage "$usage"
    while [ $# -gt 0 ]; do
        option=${1%%=*}
        if [[ $option != --* || -z ${option_values[$option]+known} ]]; then
            refuse_option "$1" "there is no such option; --help lists them."
        fi
        wanted=${option_values[$option]}
        if [ "$1" = --help ]; then
            echo "$(<"$usage")"
            exit
        elif [[ $1 == *=* ]]; then
            check_value "$option" "${1#*=}"
        elif [[ -n $wanted && $# -gt 1 && $2 != -* ]]; then
            check_value "$option" "$2"
            shift
        elif [[ -n $wanted && $wanted != \[* ]]; then
            refuse_option "$option" "$(wanted_text "$option") is wanted, and nothing is there."
        fi
        shift
    done
}
