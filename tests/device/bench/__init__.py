"""A panel on the bench: a virtual machine with a frame buffer, a touch screen and USB ports, and what
one does to it."""
