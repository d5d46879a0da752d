# cmake -DINPUT=<expanded script> -DOUTPUT=<source.cpp> -P WriteResourceSource.cmake
# Wraps the text of an expanded resource script into a source that hands it to the stand-in platform.
file(READ ${INPUT} text)
file(WRITE ${OUTPUT}
     "#include \"platform/standin/resources.h\"\n\n"
     "static const standin::EmbeddedResources kEmbedded(R\"script(${text})script\");\n")
