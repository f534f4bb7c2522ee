#!/usr/bin/env bash
# Checks that a tutorial's blocks of code stand word for word in the files of the folder beside it,
# and that its program prints the block of text: run.sh TUTORIAL.md PROGRAM
set -euo pipefail

tutorial=$1 program=$2
folder=${tutorial%.md}
shown=$(basename "$tutorial")
status=0
declare -A blocks=([code]=0 [output]=0)

complain() {
    echo "$shown:$1: $2"
    status=1
}

# Adds line ends around both, so that whole lines are compared.
stands_in_a_file() {
    local file text
    for file in "$folder"/*; do
        text=$(<"$file")
        [[ $'\n'$text$'\n' != *$'\n'"$1"$'\n'* ]] || return 0
    done
    return 1
}

check_block() {
    local line=$1 language=$2 block=$3
    case $language in
        cpp | cmake)
            blocks[code]=$((blocks[code] + 1))
            stands_in_a_file "$block" && return
            complain "$line" "no file of $(basename "$folder")/ holds this block:"
            echo "$block"
            ;;
        text)
            blocks[output]=$((blocks[output] + 1))
            diff -u --label "$shown" --label "what $(basename "$program") prints" \
                <(echo "$block") <(echo "$output") && return
            complain "$line" 'the output differs'
            ;;
        *) complain "$line" "a block is cpp, cmake or text, not '$language'" ;;
    esac
}

output=$("$program") || { echo "$program failed with status $?"; exit 1; }
number=0 begin=0 language='' block=''
while IFS= read -r line || [[ -n $line ]]; do
    number=$((number + 1))
    if [[ $line == '```'* ]]; then
        if ((begin == 0)); then
            begin=$number language=${line#'```'} block=''
        else
            check_block "$begin" "$language" "${block%$'\n'}"
            begin=0
        fi
    elif ((begin != 0)); then
        block+=$line$'\n'
    fi
done <"$tutorial"
((begin == 0)) || complain "$begin" 'this block is not closed'
((blocks[code] > 0 && blocks[output] == 1)) ||
    complain "$number" "${blocks[code]} blocks of code and ${blocks[output]} of output"
exit $status
