// kubernetes_schema.mjs: reads a Job as JSON from standard input and checks its values against the
// schema of the Kubernetes API. Prints what is wrong; status 1 then.

import { readFileSync } from 'node:fs';
import { createRequire } from 'node:module';
import { pathToFileURL } from 'node:url';

// The schema is in the current folder's node_modules, not in this file's.
const resolve = createRequire(`${process.cwd()}/`).resolve;
const folder = resolve('kubernetes-models/package.json').replace(/package\.json$/, '');
const { Job } = await import(pathToFileURL(`${folder}batch/v1/index.js`));
try {
    new Job(JSON.parse(readFileSync(0, 'utf8'))).validate();
} catch (error) {
    console.log(error.message);
    process.exitCode = 1;
}
