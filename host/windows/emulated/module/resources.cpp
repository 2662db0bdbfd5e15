// A module's compiled resources, as they are in the file that RESOURCE_FILE names.
asm(".pushsection .rodata\n"
    ".global arxResources, arxResourcesEnd\n"
    ".hidden arxResources, arxResourcesEnd\n"
    ".balign 8\n"
    "arxResources:\n"
    ".incbin \"" RESOURCE_FILE
    "\"\n"
    "arxResourcesEnd:\n"
    ".popsection\n");
