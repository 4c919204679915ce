"""What a person does with a panel, and what is measured meanwhile."""
