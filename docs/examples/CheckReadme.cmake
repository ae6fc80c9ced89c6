# Fails unless the file README contains the file PROGRAM to the letter.
file(READ ${README} readme)
file(READ ${PROGRAM} program)
string(FIND "${readme}" "${program}" position)
if(position EQUAL -1)
    message(FATAL_ERROR "${README} does not show ${PROGRAM} as it is. Copy the program into it.")
endif()
