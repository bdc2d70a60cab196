# fish completion for tembra(1)

set -l commands open close toggle add edit settings status scan render ocr doctor quit
set -l none "not __fish_seen_subcommand_from $commands"

complete -c tembra -f
complete -c tembra -n "$none" -a open -d 'Open the shelf'
complete -c tembra -n "$none" -a close -d 'Close the shelf'
complete -c tembra -n "$none" -a toggle -d 'Open or close the shelf'
complete -c tembra -n "$none" -a add -d 'Put files into the file tray'
complete -c tembra -n "$none" -a edit -d 'Open a screenshot in the editor'
complete -c tembra -n "$none" -a settings -d 'Open the settings'
complete -c tembra -n "$none" -a status -d 'Tell the state of the running one'
complete -c tembra -n "$none" -a scan -d 'Tell what is recognised as a capture, and why'
complete -c tembra -n "$none" -a render -d 'Draw annotations and crop onto an image'
complete -c tembra -n "$none" -a ocr -d 'Read the text of an image'
complete -c tembra -n "$none" -a doctor -d 'Tell what works on this desktop'
complete -c tembra -n "$none" -a quit -d 'End the running one'
complete -c tembra -n "$none" -l background -d 'Start without showing anything, as at login'
complete -c tembra -n "$none" -l version -d 'Print the version'
complete -c tembra -n "$none" -s h -l help -d 'Print how it is used'

complete -c tembra -n '__fish_seen_subcommand_from open' -l tab -x -a 'tray screenshots text' -d 'Show this tab'
complete -c tembra -n '__fish_seen_subcommand_from settings' \
  -a 'general screenshots editor tray text shortcut doctor about'
complete -c tembra -n '__fish_seen_subcommand_from status scan ocr doctor' -l json -d 'Print JSON'
complete -c tembra -n '__fish_seen_subcommand_from scan' -a '(__fish_complete_directories)'
complete -c tembra -n '__fish_seen_subcommand_from add edit render ocr' -F
complete -c tembra -n '__fish_seen_subcommand_from render' -l edits -r -d 'What is drawn'
complete -c tembra -n '__fish_seen_subcommand_from render' -s o -r -d 'The picture that is written'
complete -c tembra -n '__fish_seen_subcommand_from ocr' -l paragraphs -d 'Put the lines into paragraphs'
complete -c tembra -n '__fish_seen_subcommand_from ocr' -l one-line -d 'Put everything into one line'
complete -c tembra -n '__fish_seen_subcommand_from ocr' -l words -d 'Tell each word with its box'
