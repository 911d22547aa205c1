# SPDX-License-Identifier: MIT
# Completes the command line of tessera in fish.

complete -c tessera -f -a '(__fish_complete_directories)'
complete -c tessera -l home -d 'Show your home folder'
complete -c tessera -l disk -d 'Show the disk that your home folder is on'
complete -c tessera -l picture -r -F -d 'Write the picture to a PNG file instead of opening a window'
complete -c tessera -l size -x -a '1600x1000 1920x1080 3840x2160' -d 'Width and height of the picture'
complete -c tessera -l scale -x -a '1 1.5 2' -d 'Pixels a point, for sharper pictures'
complete -c tessera -s h -l help -d 'Print a help text'
complete -c tessera -l version -d 'Print the version'
