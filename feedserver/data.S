// The files of data/, parts of the program; place_table.cpp, outlines.cpp and climate.cpp read them.
  .section .rodata
  .global skyloft_places_begin
  .global skyloft_places_end
  .global skyloft_outlines_begin
  .global skyloft_outlines_end
  .global skyloft_climate_begin
  .global skyloft_climate_end
skyloft_places_begin:
  .incbin SKYLOFT_PLACES
skyloft_places_end:
skyloft_outlines_begin:
  .incbin SKYLOFT_OUTLINES
skyloft_outlines_end:
skyloft_climate_begin:
  .incbin SKYLOFT_CLIMATE
skyloft_climate_end:
  .section .note.GNU-stack, "", %progbits
