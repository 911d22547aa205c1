# SPDX-License-Identifier: MIT
# Completes the command line of tessera-ditto in fish.

complete -c tessera-ditto -s c -d 'Make an archive'
complete -c tessera-ditto -s k -d 'Of the zip format'
complete -c tessera-ditto -l sequesterRsrc -d 'With extended attributes in a folder of their own'
complete -c tessera-ditto -l folder -d 'Only if the source is a folder'
complete -c tessera-ditto -l file -d 'Only if the source is no folder'
complete -c tessera-ditto -s h -l help -d 'Print a help text'
complete -c tessera-ditto -l version -d 'Print the version'
