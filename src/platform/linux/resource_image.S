# The compiled resource script, as the Windows library holds it in its resource section.
    .section .rodata
    .balign 4
    .globl stmResourceImage
    .hidden stmResourceImage
stmResourceImage:
    .incbin "stmdata.res"
    .globl stmResourceImageEnd
    .hidden stmResourceImageEnd
stmResourceImageEnd:
    .section .note.GNU-stack, "", %progbits
