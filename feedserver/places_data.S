// The table of places, a part of the program; place_table.cpp reads it.
  .section .rodata
  .global skyloft_places_begin
  .global skyloft_places_end
skyloft_places_begin:
  .incbin SKYLOFT_PLACES
skyloft_places_end:
  .section .note.GNU-stack, "", %progbits
