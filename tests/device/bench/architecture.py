"""What differs between the machines of the processors that the bench has."""

import collections

Architecture = collections.namedtuple("Architecture", "machine screen screen_module console")

ARCHITECTURES = {
    "amd64": Architecture(
        ("qemu-system-x86_64", "-machine", "pc,i8042=off,accel=tcg", "-cpu", "max"),
        ("-vga", "std"), "bochs", "ttyS0"),
    "arm64": Architecture(
        ("qemu-system-aarch64", "-machine", "virt,accel=tcg", "-cpu", "cortex-a72"),
        ("-device", "virtio-gpu-pci"), "virtio_gpu", "ttyAMA0"),
}  # fmt: skip
