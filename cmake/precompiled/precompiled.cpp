// A target that precompiles headers needs a source.
