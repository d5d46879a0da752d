"""The invented units and buildings, each a function that returns its solids standing on z = 0."""
